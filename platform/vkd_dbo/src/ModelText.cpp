#include "ModelText.h"

#include "faultyKey.h"

#include <QJsonDocument>

#include <algorithm>

namespace vkd {
namespace dbo {

namespace {
constexpr int MostElements = 4096; // in a piece

QJsonDocument parsedPiece(const QByteArray& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (document.isNull())
        throw NotReadableInPieces();
    return document;
}
} // namespace

/// Finds the lists in the root object and cuts them at the commas between their elements.
class ListSplitter
{
public:
    ListSplitter(std::string_view json, ModelText& text)
        : m_json(json)
        , m_text(text)
    {
    }

    /// Returns the text without the elements of the lists.
    QByteArray split()
    {
        for (size_t at = 0; at < m_json.size(); ++at) {
            const char c = m_json[at];
            if (c == '"')
                at = readText(at);
            else if (c == '[' || c == '{')
                open(at);
            else if (c == ']' || c == '}')
                close(at);
            else if (c == ',' && m_list && m_depth == ListDepth)
                endElement(at);
        }
        return m_rest + textBetween(m_begin, m_json.size());
    }

private:
    static constexpr int ListDepth = 2;

    QByteArray textBetween(size_t begin, size_t end) const
    {
        return QByteArray(m_json.data() + begin, int(end - begin));
    }

    /// Returns the position of the closing quote, or the end of the text.
    size_t readText(size_t begin)
    {
        size_t end = begin + 1;
        while (end < m_json.size() && m_json[end] != '"')
            end += m_json[end] == '\\' ? 2 : 1;
        end = std::min(end, m_json.size());
        if (m_depth == ListDepth - 1)
            m_key = textBetween(begin + 1, end);
        return end;
    }

    void open(size_t at)
    {
        if (++m_depth != ListDepth || m_json[at] != '[')
            return;
        const QString key = QString::fromUtf8(m_key);
        // A list would not be found by a decoded key, and lists in a list all have the same key.
        if (m_key.contains('\\') || m_text.m_lists.contains(key))
            throw NotReadableInPieces();
        m_rest += textBetween(m_begin, at + 1);
        m_begin = at + 1;
        m_list = &m_text.m_lists[key];
        m_cut = 0;
    }

    void close(size_t at)
    {
        if (m_depth-- != ListDepth || !m_list)
            return;
        const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
        const std::string_view last = m_json.substr(m_begin, at - m_begin);
        if (m_list->size > 0 || !std::all_of(last.begin(), last.end(), isBlank))
            endElement(at);
        if (m_cut > 0)
            cut(at);
        m_text.m_size += m_list->size;
        m_begin = at;
        m_list = nullptr;
    }

    void endElement(size_t at)
    {
        ++m_list->size;
        if (++m_cut == MostElements)
            cut(at);
    }

    void cut(size_t at)
    {
        m_list->pieces.push_back(m_json.substr(m_begin, at - m_begin));
        m_begin = at + 1;
        m_cut = 0;
    }

    std::string_view m_json;
    ModelText& m_text;
    QByteArray m_rest;
    QByteArray m_key;
    size_t m_begin = 0; // beginning of the piece, or of the text between two lists
    ModelText::List* m_list = nullptr;
    int m_cut = 0; // elements of the current piece
    int m_depth = 0;
};

ModelText::ModelText(const QByteArray& bytes)
{
    if (findFaultyKey(bytes).fault != FaultyKey::None)
        throw NotReadableInPieces();
    const QByteArray rest = ListSplitter({bytes.constData(), size_t(bytes.size())}, *this).split();
    const QJsonDocument root = parsedPiece(rest);
    if (!root.isObject())
        throw NotReadableInPieces();
    m_root = root.object();
}

const ModelText::List& ModelText::list(const QString& key) const
{
    const auto found = m_lists.find(key);
    if (found == m_lists.end())
        throw NotReadableInPieces();
    return *found;
}

QJsonArray ModelText::piece(const QString& key, int index) const
{
    const std::string_view elements = list(key).pieces[size_t(index)];
    const QJsonArray array =
        parsedPiece('[' + QByteArray(elements.data(), int(elements.size())) + ']').array();
    if (array.isEmpty()) // between two commas
        throw NotReadableInPieces();
    return array;
}

} // namespace dbo
} // namespace vkd
