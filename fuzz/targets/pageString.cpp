#include "FuzzTarget.h"

#include <output/SavedPage.h>
#include <script/outputScript.h>

using plib::OutputSettings;

namespace {
class NoTexts : public plib::ScriptEnvironment
{
public:
    QString programHead() const override { return QStringLiteral("HEAD\n"); }
    QString programEnd(plib::Keywords) const override { return QStringLiteral("END\n"); }
    bool hasQuads() const override { return true; }
    QString camera() const override { return QString(); }
};

/// Returns whether a page can show the settings.
bool isPossible(const OutputSettings& settings)
{
    return settings.scaleIndex >= 0 && settings.scaleIndex < plib::scaleRows().size() &&
           int(settings.scaleMode) <= 1 && int(settings.formatId) <= 1 &&
           int(settings.picturesId) <= 1 && int(settings.viewId) <= 4 &&
           !settings.fontSizeText.trimmed().isEmpty();
}
} // namespace

/// Any saved string must result in settings that a page can show, and it must be possible to save
/// each of its parts again.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    using namespace plib::savedtag;
    const QString text = fuzz::textOf(bytes, size);
    const plib::SavedPage saved(text, OutputSettings());
    FUZZ_CHECK(isPossible(saved.settings()));
    QString written;
    for (const char* tag : {Plots, Scale, Font, Fill, Format, Pictures, View, Camera})
        if (saved.has(tag))
            written += plib::savedPart(tag, saved.part(tag));
    const plib::SavedPage again(written, OutputSettings());
    for (const char* tag : {Plots, Scale, Font, Fill, Format, Pictures, View, Camera})
        FUZZ_CHECK(again.part(tag) == saved.part(tag));
    for (auto keywords : {plib::Keywords::German, plib::Keywords::English})
        FUZZ_CHECK(plib::outputScript(saved.settings(), {QStringLiteral("VIEW EG3")}, text,
                                      keywords, NoTexts()) ==
                   plib::outputScript(again.settings(), {QStringLiteral("VIEW EG3")}, text,
                                      keywords, NoTexts()));
    return 0;
}
