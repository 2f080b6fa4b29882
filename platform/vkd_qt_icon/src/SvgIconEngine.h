#pragma once

#include <QIconEngine>

namespace vkd {
namespace qt {

/// An icon engine that renders an SVG image for each size, state and palette. Qt's own SVG engine
/// does not use the palette. Four colours in the image represent colour roles of the palette, so
/// that the files are valid images in any drawing program:
///
/// black: WindowText, blue (#0000ff): Highlight, white: Base, #fffffe: HighlightedText.
///
/// Rendered pixmaps are cached for the whole program, because dialogs show the same icon many times
/// and are opened repeatedly.
class SvgIconEngine : public QIconEngine
{
public:
    /// Uses the name and the contents of an SVG file.
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
