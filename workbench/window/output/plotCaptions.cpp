#include "window/output/plotCaptions.h"

#include "window/output/WaitingPlots.h"

#include <QTreeWidget>

namespace workbench {

namespace {
const QString Dash = QStringLiteral(" \u2013 ");

QString pathOf(const QTreeWidgetItem* item)
{
    QString path = item->text(0);
    for (const QTreeWidgetItem* above = item->parent(); above; above = above->parent())
        path = above->text(0) + Dash + path;
    return path;
}

bool isChecked(const QTreeWidgetItem* item)
{
    return item->checkState(0) != Qt::Unchecked;
}

int leadingNumber(const QString& text)
{
    int length = 0;
    while (length < text.size() && text[length].isDigit())
        ++length;
    return text.leftRef(length).toInt();
}

/// The rows below a plot share its caption.
void addRows(const QTreeWidgetItem* plot, QVector<PlotCaption>* captions)
{
    const QString path = pathOf(plot);
    for (int i = 0; i < plot->childCount(); ++i) {
        if (!isChecked(plot->child(i)))
            continue;
        const QString row = plot->child(i)->text(0);
        captions->append({path, leadingNumber(row), row.section(QLatin1Char(':'), 1).trimmed()});
    }
}
} // namespace

QVector<PlotCaption> plotCaptions(const QTreeWidget& tree, const WaitingPlots& waiting)
{
    QVector<PlotCaption> captions;
    for (int top = 0; top < tree.topLevelItemCount(); ++top)
        for (int second = 0; second < tree.topLevelItem(top)->childCount(); ++second) {
            const QTreeWidgetItem* parent = tree.topLevelItem(top)->child(second);
            for (int i = 0; i < parent->childCount(); ++i) {
                const QTreeWidgetItem* plot = parent->child(i);
                if (plot->childCount() > 0)
                    addRows(plot, &captions);
                else if (isChecked(plot) && !waiting.contains(plot))
                    captions.append({pathOf(plot), 0, QString()});
            }
        }
    return captions;
}

} // namespace workbench
