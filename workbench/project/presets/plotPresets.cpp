#include "project/presets/plotPresets.h"

#include <QSet>

namespace workbench {

namespace {
QString joined(const QStringList& captions)
{
    return captions.join(QStringLiteral(" \u2013 "));
}

/// Returns the line of a selection text that checks some load cases of a plot, or an empty string.
QString partialLine(const QString& selection, const QString& identifier)
{
    const QString head = QStringLiteral("\nPartially:%1 :").arg(identifier);
    const int begin = selection.indexOf(head);
    return begin < 0
               ? QString()
               : selection.mid(begin + 1, selection.indexOf(QLatin1Char('\n'), begin + 1) - begin);
}
} // namespace

QVariantMap chosenPlots(const PlotsOnPage& page)
{
    QVariantMap contents;
    for (const PlotOnPage& plot : page)
        if (plot.state != Qt::Unchecked)
            contents.insert(plot.identifier, plot.captions);
    return contents;
}

PresetCaptions captionsOf(const QVariantMap& contents, const PlotsOnPage& page)
{
    PresetCaptions captions;
    QVariantMap absent = contents;
    for (const PlotOnPage& plot : page)
        if (contents.contains(plot.identifier)) {
            captions.offered << joined(plot.captions);
            absent.remove(plot.identifier);
        }
    for (auto plot = absent.cbegin(); plot != absent.cend(); ++plot) {
        const QString text = joined(plot.value().toStringList());
        captions.absent << (text.isEmpty() ? plot.key() : text);
    }
    return captions;
}

int addedPictures(const QVariantMap& contents, const PlotsOnPage& page)
{
    int pictures = 0;
    for (const PlotOnPage& plot : page)
        if (plot.state == Qt::Unchecked && contents.contains(plot.identifier))
            pictures += plot.newPictures;
    return pictures;
}

QString selectionWithPreset(const QVariantMap& contents, PlotsOfPreset mode, const QString& shown,
                            const QString& all)
{
    QString text = mode == PlotsOfPreset::Add ? all : QStringLiteral("\n");
    for (auto plot = contents.cbegin(); plot != contents.cend(); ++plot) {
        const bool keepsLoadCases = !partialLine(shown, plot.key()).isEmpty();
        if (!keepsLoadCases)
            text += QStringLiteral("Checked:%1\n").arg(plot.key());
        else if (mode == PlotsOfPreset::Replace)
            text += partialLine(all, plot.key());
    }
    return text;
}

} // namespace workbench
