#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <string_view>
#include <vector>

namespace vkd {
namespace dbo {

/// Thrown if the text is not valid JSON or cannot be split. It must then be parsed as a whole.
struct NotReadableInPieces
{
};

/// The text of a model file, split into the root object and the elements of its lists. The elements
/// are parsed in pieces, because a parsed list takes several times the memory of its text. Each
/// operation can throw NotReadableInPieces.
class ModelText
{
public:
    /// The bytes must outlive the object.
    explicit ModelText(const QByteArray& bytes);

    /// Returns the object, in which all lists are empty.
    const QJsonObject& root() const { return m_root; }
    /// Returns the number of elements in all lists.
    int size() const { return m_size; }
    /// Returns the number of elements in a list.
    int size(const QString& key) const { return list(key).size; }
    int pieceCount(const QString& key) const { return int(list(key).pieces.size()); }
    QJsonArray piece(const QString& key, int index) const;

private:
    struct List
    {
        std::vector<std::string_view> pieces; // without brackets and without a comma at the end
        int size = 0;
    };

    const List& list(const QString& key) const;

    QHash<QString, List> m_lists;
    QJsonObject m_root;
    int m_size = 0;

    friend class ListSplitter;
};

} // namespace dbo
} // namespace vkd
