#pragma once

class QPainter;
class QRect;
class QWidget;

/// The mark of an input field whose text is refused: a frame, and a warning sign at the right end
/// of `place` for those who do not see its colour. It follows the field's palette and font.
void paintFieldMark(QPainter* painter, const QWidget& field, const QRect& place);

/// The width of the warning sign in pixels.
int fieldMarkWidth(const QWidget& field);
