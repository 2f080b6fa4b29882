#include "output/keptSettings.h"

namespace plib {

namespace {
constexpr int ScaleToFit = 1;
constexpr int AutoRow = 0;
constexpr int FormatCount = 2;
constexpr int PicturesCount = 2;
constexpr int ViewCount = 5;

/// A text with a "-" means the row "Auto". A text that is not in the list, such as "0", means scale
/// to fit.
void applyScale(const QString& value, OutputSettings* settings)
{
    if (value.isNull())
        return;
    const QStringList rows = scaleRows();
    const int row = value.contains(QLatin1Char('-')) ? AutoRow : rows.indexOf(value);
    if (row < 0)
        settings->scaleMode = ScaleToFit;
    else
        chooseScale(row, settings);
}

/// Returns whether the part exists. A text that is not a number counts as 0.
bool applyChoice(const QString& value, int count, int* choice)
{
    const int entry = value.toInt();
    if (!value.isNull() && entry >= 0 && entry < count)
        *choice = entry;
    return !value.isNull();
}
} // namespace

void applyKeptSettings(const KeptPart& part, OutputSettings* settings)
{
    applyScale(part(kepttag::Scale), settings);
    const QString font = part(kepttag::Font);
    if (!font.isNull()) // an empty text means the default size
        settings->fontSizeText = font.trimmed().isEmpty() ? OutputSettings().fontSizeText : font;
    const QString fill = part(kepttag::Fill);
    if (!fill.isNull())
        settings->fillAreas = fill.contains(QLatin1Char('1'));
    if (settings->hasFormat) {
        if (applyChoice(part(kepttag::Format), FormatCount, &settings->formatId))
            settings->picturesId = picturesForFormat(settings->formatId);
        applyChoice(part(kepttag::Pictures), PicturesCount, &settings->picturesId);
    }
    applyChoice(part(kepttag::View), ViewCount, &settings->viewId);
}

} // namespace plib
