#pragma once

#include <QIconEngine>

namespace vkd {
namespace qt {

/// An icon engine that renders an SVG picture for each size, state and palette. Qt's own SVG engine
/// does not follow the palette. Four colours of the picture stand for roles of the palette, so that
/// the files are valid pictures for any drawing program:
///
/// black: WindowText, blue (#0000ff): Highlight, white: Base, #fffffe: HighlightedText.
///
/// Rendered pixmaps are cached for the whole program, because dialogs show the same icon many times
/// and are opened again.
class SvgIconEngine : public QIconEngine
{
public:
    /// Takes the name and the text of an SVG picture.
    SvgIconEngine(const QString& name, const QByteArray& svg);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;

private:
    QString m_name;
    QByteArray m_svg;
};

} // namespace qt
} // namespace vkd
