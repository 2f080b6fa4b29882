#pragma once

#include <QtTableView.h>

class QStringListModel;

namespace workbench {

/// The lines of a table of contents. Lines that are too long are elided in the middle, because
/// titles of combinations often differ only at their end.
class ContentsList : public vkd::properties::nextGen::QtTableView
{
    Q_OBJECT

public:
    explicit ContentsList(QWidget* parent);

    /// Shows the lines of a text without moving the first visible line. If the text is empty, the
    /// list says that nothing is printed.
    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QStringListModel* m_lines;
};

} // namespace workbench
