#pragma once

#include <QColor>
#include <QFrame>
#include <QVector>

namespace workbench {

/// The colours of the design rows, in the top right corner of the view. If there is not enough room
/// for all rows, the last line shows how many rows are missing. A click on a line selects its row.
class RowLegend : public QFrame
{
    Q_OBJECT

public:
    struct Entry
    {
        int row;
        QColor colour;
        QString groups;
    };

    /// The legend is in a corner of `view`, which becomes its parent.
    explicit RowLegend(QWidget* view);
    /// Shows these rows, or nothing if there are none.
    void setEntries(const QVector<Entry>& entries);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void rowClicked(int row);

protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();
    int lineHeight() const;
    int shownEntries() const;
    QString text(const Entry& entry) const;

    QVector<Entry> m_entries;
};

} // namespace workbench
