#include "FuzzTarget.h"

#include <QDir>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <random>
#include <unistd.h>
#include <vector>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace {
constexpr unsigned HangSeconds = 60;

/// Mutates random inputs of the corpus. The same seed always results in the same inputs.
class Mutator
{
public:
    explicit Mutator(std::vector<QByteArray> corpus)
        : m_corpus(std::move(corpus))
    {
    }

    QByteArray next()
    {
        QByteArray input = any();
        for (int changes = below(8); changes >= 0; --changes)
            change(input);
        return input;
    }

private:
    void change(QByteArray& input)
    {
        static const QByteArray pieces[] = {
            "|",        "\n",         ":",  ",",    "+",        "-", "@",           "&25C",
            "Checked:", "Partially:", "%1", "\xFF", "\xC3\xA4", " ", "99999999999", "nan",
            "$(LFNR)",  "UNIT",       ";",  "1e39", "\"",       "<", "4294967297",  {1, '\0'}};
        const int at = below(input.size() + 1);
        const int length = below(20);
        switch (below(5)) {
        case 0: input.remove(at, length); break;
        case 1: input.insert(at, pieces[below(int(std::size(pieces)))]); break;
        case 2: input.replace(at, 1, QByteArray(1, char(below(256)))); break;
        case 3: input.insert(at, input.mid(below(input.size() + 1), 10 * length)); break;
        default: input.replace(at, length, pieceOf(any(), length));
        }
    }

    QByteArray pieceOf(const QByteArray& input, int length)
    {
        return input.mid(below(input.size() + 1), length);
    }

    const QByteArray& any() { return m_corpus[size_t(below(int(m_corpus.size())))]; }
    int below(int end) { return int(m_random() % unsigned(end)); }

    std::vector<QByteArray> m_corpus;
    std::mt19937 m_random{1};
};

/// Passes the input to the target, after writing it to the file `last`, so that the file contains
/// the input if a check fails.
void run(const QByteArray& input, std::FILE* last)
{
    std::rewind(last);
    std::fwrite(input.constData(), 1, size_t(input.size()), last);
    std::fflush(last);
    if (ftruncate(fileno(last), input.size()) != 0)
        std::perror("ftruncate");
    alarm(HangSeconds);
    // A copy on the heap, so that the sanitizers detect a read beyond its end.
    const std::vector<uint8_t> bytes(input.begin(), input.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

std::vector<QByteArray> readCorpus(const QString& folder)
{
    std::vector<QByteArray> corpus;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& info : files) {
        QFile file(info.filePath());
        file.open(QIODevice::ReadOnly);
        corpus.push_back(file.readAll());
    }
    return corpus;
}
} // namespace

/// Runs a target without clang's libFuzzer, using the corpus and reproducible mutations. The
/// arguments are the corpus folder and the number of mutations.
int main(int argc, char* argv[])
{
    LLVMFuzzerInitialize(&argc, &argv);
    const std::vector<QByteArray> corpus =
        readCorpus(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    const QByteArray lastFile = QByteArray(argv[0]) + ".last";
    std::FILE* last = std::fopen(lastFile.constData(), "wb");
    if (argc != 3 || corpus.empty() || !last) {
        std::fprintf(stderr, "usage: %s CORPUS MUTATIONS\n", argv[0]);
        return 1;
    }
    QElapsedTimer clock;
    clock.start();
    for (const QByteArray& input : corpus)
        run(input, last);
    Mutator mutator(corpus);
    const int mutations = std::atoi(argv[2]);
    for (int i = 0; i < mutations; ++i)
        run(mutator.next(), last);
    std::fclose(last);
    std::remove(lastFile.constData());
    std::printf("%d inputs and %d mutations in %d ms\n", int(corpus.size()), mutations,
                int(clock.elapsed()));
    return 0;
}
