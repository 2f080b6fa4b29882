#include "output/savedSettings.h"

namespace plib {

namespace {
/// A value with "-" denotes the row "Auto". A value that is not in the list, such as "0", denotes
/// "scale to fit".
void applyScale(const QString& value, OutputSettings* settings)
{
    if (value.isNull())
        return;
    const QStringList rows = scaleRows();
    const int row = value.contains(QLatin1Char('-')) ? AutoScaleRow : rows.indexOf(value);
    if (row < 0)
        settings->scaleMode = ScaleMode::ToFit;
    else
        chooseScale(row, settings);
}

/// Applies a saved choice if it is valid, and returns whether the tag exists. A value that is not a
/// number is read as 0.
template <typename Choice>
bool applyChoice(const QString& value, Choice last, Choice* choice)
{
    const int entry = value.toInt();
    if (!value.isNull() && entry >= 0 && entry <= int(last))
        *choice = Choice(entry);
    return !value.isNull();
}
} // namespace

void applySavedSettings(const SavedPart& part, OutputSettings* settings)
{
    applyScale(part(savedtag::Scale), settings);
    const QString font = part(savedtag::Font);
    if (!font.isNull()) // an empty value means the default size
        settings->fontSizeText = font.trimmed().isEmpty() ? OutputSettings().fontSizeText : font;
    const QString fill = part(savedtag::Fill);
    if (!fill.isNull())
        settings->fillAreas = fill.contains(QLatin1Char('1'));
    if (settings->hasFormat) {
        if (applyChoice(part(savedtag::Format), PageFormat::Landscape, &settings->formatId))
            settings->picturesId = picturesForFormat(settings->formatId);
        applyChoice(part(savedtag::Pictures), PagePictures::Two, &settings->picturesId);
    }
    applyChoice(part(savedtag::View), OutputView::UserDefined, &settings->viewId);
}

} // namespace plib
