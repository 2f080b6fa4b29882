#include "ModelText.h"
#include "TestSupport.h"

#include <vkd_dbo_model.h>
#include <vkd_zob.h>

#include <QTemporaryDir>

using namespace vkd::dbo;

/// Tests the shipped model files, and the error messages for invalid model files.
class TestModelFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allowed()
    {
        writeFile(R"("supports": [[1, "z rx"], [2, ""], [3, "x y z rx ry rz"]],
                     "quads": [[5, 1, 1, 2, 3, 0, 0.25]], "springs": [[6, 1, 2, 0, 1e3]],
                     "sectionCuts": [{"number": 8, "title": {"german": "c", "english": "d"},
                                      "points": [[0, 0, 0], [1, 0, 0]]}],
                     "loadCases": [{"number": 7, "title": {"german": "a", "english": "b"}}])");
        Model m;
        const VkdStatus read = readModelFile(m_path, vkd::Language::English, &m);
        QVERIFY2(read.isOk(), qPrintable(read.reason));
        QCOMPARE(m.supports[0].fixed, 4 + 8);
        QCOMPARE(m.supports[1].fixed, 0);
        QCOMPARE(m.supports[2].fixed, 63);
        QCOMPARE(m.nodes[1].position, (Position{1, -2.5, 0.125}));
        QVERIFY(m.quads[0].nodes[3] == 0 && m.quads[0].thickness == 0.25);
        QVERIFY(m.springs[0].nodes[1] == 0 && m.springs[0].stiffness == 1000);
        QVERIFY(m.loadCases[0].kind == 1 && m.loadCases[0].title == QLatin1String("b"));
        QCOMPARE(m.sectionCuts.value(0).title, QStringLiteral("d"));
    }

    /// Each case is a line for writeFile() and the expected error.
    void wrong()
    {
        const auto errorOf = [this](const QString& text) { return this->errorOf(text); };
        compareCases(errorOf, R"(
"knots": [] => unknown key "knots"
"line\nbreak": [] => unknown key "line break"
"title": 7 => title: an object is required
"title": {"german": "t"} => title: the key "english" is missing
"groups": [{"number": 1, "titel": "t"}] => groups[0]: unknown key "titel"
"groups": {} => groups: a list is required
"groups": [{"number": 1000, "title": "t"}] => groups[0].number: a number of 999 or less is required
"nodes": oh => line 1, column 11: illegal number
"beams": [], "beams": [] => line 1, column 15: "beams" occurs twice
"nodes": [[1, 0, 0, 0], [1, 0, 0, 1]] => nodes[1][0]: the number 1 occurs twice
"nodes": [[0, 0, 0, 0]] => nodes[0][0]: a number of 1 or more is required
"nodes": [[1, 0, 0]] => nodes[0]: 4 values are required
"nodes": [[1, 0, 0, 0, 0]] => nodes[0]: at most 4 values are allowed here
"nodes": [[1, 0, "0", 0]] => nodes[0][2]: a number is required
"nodes": [[1.5, 0, 0, 0]] => nodes[0][0]: a whole number is required
"nodes": [[1, 0, 0, 0], [3e9, 0, 0, 0]] => nodes[1][0]: a whole number is required
"supports": [[4, "x"]] => supports[0][0]: node 4 does not exist
"supports": [[1, "x u"]] => supports[0][1]: unknown direction "u"
"beams": [[1, 1, 1, 1, 2], [2, 1, 1, 1, 0]] => beams[1][4]: node 0 does not exist
"cables": [[1, 2, 1, 1, 2]] => cables[0][1]: group 2 does not exist
"trusses": [[1, 1, 5, 1, 2]] => trusses[0][2]: cross section 5 does not exist
"quads": [[1, 1, 0, 1, 2, 3, 0.2]] => quads[0][2]: node 0 does not exist
"bricks": [[1, 1, 1, 2, 3, 1, 2, 3, 1, 0]] => bricks[0][9]: node 0 does not exist
"areas": [[1, 1, 2, 7]] => areas[0][3]: point 7 does not exist
"loadCases": [{"number":1, "title":"", "kind":3}] => loadCases[0].kind: the kind must be 1 or 2
[] => an object is required
)");
        const QList<QPair<const char*, const char*>> inside{
            {R"({"title": "t", "kindOfSystem": 0, "groups": []})", R"(the key "nodes" is missing)"},
            {R"("axes": [{"number": 1, "title": "t", "points": [[0, 0, 0], [1, 0]]}])",
             "axes[0].points[1]: 3 values are required"},
            {R"("secondaryGroups": [{"name": "A", "title": "t", "quads": [8]}])",
             "secondaryGroups[0].quads[0]: element 8 does not exist"},
            {R"("designParameters": [{"groups": ["1"], "values": {"hio": "x"}}])",
             "designParameters[0].values.hio: a number is required"},
            {R"("designParameters": [{"groups": ["1", "1"], "values": {}}])",
             "designParameters[0].groups[1]: group 1 does not exist or occurs twice"}};
        for (const auto& one : inside)
            QCOMPARE(errorOf(QLatin1String(one.first)), QLatin1String(one.second));
        QString keys = QStringLiteral("\"knots\": []");
        for (int i = 0; i < 1000; ++i)
            keys += QStringLiteral(", \"k%1\": 0").arg(i);
        QVERIFY(errorOf(keys).endsWith(QLatin1String(": an object has more than 1000 keys")));
    }

    void wrongNames()
    {
        for (const char* name : {"ABCDE", "", "12", "A;B", "Ä", "AB\\n"}) {
            const QString text =
                QStringLiteral(R"("secondaryGroups": [{"name": "%1", "title": "t"}])");
            QVERIFY2(errorOf(text.arg(QString::fromUtf8(name)))
                         .contains(QLatin1String("[0].name: a name of one to four ASCII letters")),
                     name);
        }
    }

    void missing()
    {
        Model m;
        const QString path = m_path + QStringLiteral(".gone");
        const VkdStatus read = readModelFile(path, vkd::Language::English, &m);
        QCOMPARE(read.code, int(VKD_ZOB_NO_FILE));
        QCOMPARE(read.reason, path + QLatin1String(": No such file or directory"));
    }

    /// Long lists are read in several pieces. Qt reports the position after the wrong character.
    /// The progress shows that a file with an error is not read again.
    void longLists()
    {
        const QByteArray many = "\"supports\": [" + QByteArray("[1, \"z\"],").repeated(8192);
        writeFile(many + "[2, \"x\"]]");
        Model m;
        const VkdStatus read = readModelFile(m_path, vkd::Language::English, &m);
        QVERIFY2(read.isOk(), qPrintable(read.reason));
        QVERIFY(m.supports.size() == 8193 && m.supports.last().node == 2);
        const auto errorAfter = [&](const char* rest) {
            return errorOf(QString::fromLatin1(many + rest));
        };
        QCOMPARE(errorAfter("[4, \"x\"]]"),
                 QStringLiteral("supports[8192][0]: node 4 does not exist"));
        std::vector<int> progress;
        const VkdGoOn note = [&progress](int percent) {
            progress.push_back(percent);
            return true;
        };
        QCOMPARE(readModelFile(m_path, vkd::Language::English, &m, note).code,
                 int(VKD_ZOB_DAMAGED));
        QVERIFY(progress.back() > 0 && std::is_sorted(progress.begin(), progress.end()));
        QCOMPARE(errorAfter("]").section(QLatin1Char(':'), 0, 0),
                 QStringLiteral("line 1, column %1").arg(many.size() + 3));
    }

    /// A long list is parsed in pieces, because parsing it as a whole would take much more memory.
    void pieces()
    {
        QByteArray nodes;
        for (int i = 0; i < 10000; ++i)
            nodes += QByteArray(i ? "," : "") + "{\"number\": [" + QByteArray::number(i) +
                     ", \"],\\\"}\"]}";
        const QByteArray bytes =
            "{\"title\": \"a, [b]\", \"nodes\": [" + nodes +
            "], \"view\": {\"beams\": [1, 2]}, \"cables\": [ ], \"beams\": [7]}";
        const ModelText text(bytes);
        QCOMPARE(text.size(), 10001);
        QCOMPARE(text.size(QStringLiteral("cables")), 0);
        QCOMPARE(text.piece(QStringLiteral("beams"), 0), QJsonArray{7});
        int read = 0;
        for (int piece = 0; piece < text.pieceCount(QStringLiteral("nodes")); ++piece) {
            const QJsonArray elements = text.piece(QStringLiteral("nodes"), piece);
            QVERIFY(elements.size() < 5000);
            for (const auto& element : elements)
                QCOMPARE(element.toObject().value(QStringLiteral("number")).toArray().first(),
                         read++);
        }
        QCOMPARE(read, text.size(QStringLiteral("nodes")));
        QCOMPARE(text.root().value(QStringLiteral("title")), QStringLiteral("a, [b]"));
        QVERIFY(text.root().value(QStringLiteral("nodes")).toArray().isEmpty());
    }

    /// The error at the end shows whether the whole file was parsed.
    void cancelledDuringParsing()
    {
        Model m;
        for (const auto& [lists, allowed] : {std::pair(1, 0), {500000, 1}}) {
            const QByteArray start = '[' + QByteArray("[1, 2, 3],").repeated(lists);
            testsupport::writeFile(m_path, start + "oh");
            int calls = 0;
            const VkdGoOn goOn = [&calls, most = allowed](int) { return ++calls <= most; };
            QCOMPARE(readModelFile(m_path, vkd::Language::English, &m, goOn).code,
                     int(VKD_ZOB_CANCELLED));
            QCOMPARE(calls, allowed + 1);
        }
    }

private:
    /// Returns the reason why a file with this text is refused. The model must remain unchanged.
    QString errorOf(const QString& text) const
    {
        writeFile(text.toUtf8());
        Model m;
        m.system.title = QStringLiteral("untouched");
        const VkdStatus read = readModelFile(m_path, vkd::Language::English, &m);
        const bool isUntouched = m.system.title == QLatin1String("untouched");
        return read.code != VKD_ZOB_DAMAGED || !isUntouched
                   ? QStringLiteral("read")
                   : read.reason.section(m_path + QLatin1String(": "), 1);
    }

    /// Writes a valid file to which the line in `text` is added. It replaces an existing line with
    /// the same key.
    void writeFile(const QByteArray& text) const
    {
        QByteArray file = '{' + text;
        for (const char* line : {R"("title": "t")", R"("kindOfSystem": 0)",
                                 R"("groups": [{"number": 1, "title": "g"}])",
                                 R"("crossSections": [{"number": 1, "title": "s"}])",
                                 R"("nodes": [[1, 0, 0, 0], [2, 1, -2.5, 0.125], [3, 0, 1, 0]])",
                                 R"("points": [[1, 0, 0, 0], [2, 1, 0, 0]])"})
            if (text.left(5) != QByteArray(line).left(5))
                file += QByteArray(", ") + line;
        const bool isWhole = text.startsWith('{') || text.startsWith('[');
        testsupport::writeFile(m_path, isWhole ? text : file + '}');
    }

    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("model %1.json"));
};

PLIB_TEST_MAIN(TestModelFile)
#include "tst_modelFile.moc"
