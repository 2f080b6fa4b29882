#include "FuzzTarget.h"

#include "project/dialogPages.h"
#include "project/output/OutputList.h"
#include "project/output/TextOutputState.h"

#include <VKD_H_ProjectDialogPage.h>
#include <vkd_zob.h>
#include <vkd_zob_keys.h>

using namespace workbench;

namespace {
constexpr ZobHandle Scratch = ZobHandle::scratch();

/// Replaces the entries of a page. Keys and values alternate and are separated by null characters.
void setEntries(int page, const QString& text)
{
    const auto keys = vkd::zob::keys::dialogPage(page);
    const int none = 0;
    vkd_zob_put(Scratch.index(), keys.key1, keys.key2, nullptr, &none, 0);
    VKD_H_ProjectDialogPage entries(Scratch, page);
    const QStringList parts = text.split(QChar(0));
    for (int i = 0; i + 1 < parts.size(); i += 2)
        entries.setEntry(parts[i], parts[i + 1]);
    FUZZ_CHECK(entries.save().isOk());
}

bool areAlike(const OutputList& a, const OutputList& b)
{
    bool alike = a.names() == b.names();
    for (int i = 0; i < a.size() && alike; ++i)
        alike = a.at(i).state == b.at(i).state;
    return alike;
}
} // namespace

/// It must be possible to store any outputs and any text output that were read from entries, and to
/// read them back unchanged. The names of outputs must be unique.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const QString text = fuzz::textOf(bytes, size);
    VkdStatus status;
    setEntries(OutputDialogPage, text);
    const OutputList outputs = OutputList::read(Scratch, &status);
    FUZZ_CHECK(status.isOk() && outputs.size() > 0);
    for (int i = 0; i < outputs.size(); ++i)
        FUZZ_CHECK(outputs.indexOf(outputs.name(i)) == i);
    FUZZ_CHECK(outputs.put(Scratch).isOk());
    FUZZ_CHECK(areAlike(OutputList::read(Scratch), outputs));

    setEntries(TextOutputDialogPage, text);
    const TextOutputState state = TextOutputState::read(Scratch, 7, &status);
    FUZZ_CHECK(status.isOk() && state.put(Scratch).isOk());
    FUZZ_CHECK(TextOutputState::read(Scratch, 0) == state);
    return 0;
}
