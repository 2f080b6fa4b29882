#include "FuzzTarget.h"

#include "HelpBook.h"

#include <QDir>
#include <QUrl>

namespace {
/// Creates pages for the topics "one" and "two" of a help book and adds the book to the search
/// path.
bool makeBook()
{
    const QDir share = QFileInfo(fuzz::file("share", "")).dir();
    share.mkpath(QStringLiteral("help/book/en"));
    for (const char* page : {"help/book/en/one.html", "help/book/en/two.html"})
        fuzz::file(page, "<h1>Page</h1>");
    return qputenv("VKD_SHARE", share.path().toLocal8Bit());
}
} // namespace

/// The input is the index of a help book. Each topic must have a page that is found by name and by
/// URL.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    static const bool isMade = makeBook();
    FUZZ_CHECK(isMade);
    fuzz::file("help/book/en/index.txt", fuzz::bytesOf(bytes, size));
    const HelpBook book(QStringLiteral("book"), vkd::Language::English);
    for (int i = 0; i < book.topics().size(); ++i) {
        const int found = book.find(book.topics()[i].name);
        FUZZ_CHECK(found >= 0 && found <= i);
        FUZZ_CHECK(book.find(book.address(i)) == found);
        FUZZ_CHECK(!book.file(book.address(i)).isEmpty());
    }
    book.find(QUrl(fuzz::textOf(bytes, size)));
    return 0;
}
