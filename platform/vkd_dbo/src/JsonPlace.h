#pragma once

#include <vkd_language.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

namespace vkd {
namespace dbo {

/// An error in a model file with its position. The text is empty if the caller cancelled. The error
/// is thrown only within the reader.
struct ModelFileError
{
    Q_DECLARE_TR_FUNCTIONS(vkd::dbo::ModelFileError) // German: in vkd_qt's translation file

public:
    QString text;
};

class JsonList;

/// A value in a model file together with its path, such as `beams[12][3]` (zero-based), so that
/// every error message contains the path. The text of the path is needed only for an error message.
/// Therefore a place stores only a pointer to its parent place, which must outlive it. Each read
/// operation throws a ModelFileError if the value has another type.
class JsonPlace
{
public:
    /// Creates the place for the root value of the file.
    explicit JsonPlace(QJsonValue root)
        : m_value(std::move(root))
    {
    }

    [[noreturn]] void fail(const QString& what) const;

    int integer() const;
    int positive() const;
    double real() const;
    QString string() const;
    /// Reads a string, or an object with one string per language.
    QString title(Language language) const;
    /// Returns the elements of a list with at least `least` and, unless `most` is 0, at most `most`
    /// elements.
    JsonList list(int least = 0, int most = 0) const&;
    JsonList list(int least = 0, int most = 0) && = delete;
    /// Returns the place of this list with only some of its elements, of which the first has the
    /// index `first` in the whole list.
    JsonPlace part(const QJsonArray& elements, int first) const;
    /// Throws unless this is an object that contains all keys in `needed` and no keys outside the
    /// two lists.
    void checkKeys(const QStringList& needed, const QStringList& optional) const;
    bool has(const QString& key) const;
    QStringList keys() const;
    JsonPlace at(const QString& key) const&;
    JsonPlace at(const QString& key) && = delete;

private:
    friend class JsonList;

    static constexpr int InObject = -1;

    JsonPlace(QJsonValue value, const JsonPlace* parent, int index, QString key = QString())
        : m_value(std::move(value))
        , m_parent(parent)
        , m_index(index)
        , m_key(std::move(key))
    {
    }

    QJsonObject object() const;
    QString path() const;

    QJsonValue m_value;
    const JsonPlace* m_parent = nullptr;
    int m_index = 0; // index in a list, or InObject
    int m_first = 0; // index of the first element of m_value in the whole list
    QString m_key;
};

/// The elements of a list. The place of an element is created only on access, because a list can
/// have a million elements.
class JsonList
{
public:
    JsonList(const JsonPlace* place, QJsonArray values)
        : m_place(place)
        , m_values(std::move(values))
    {
    }

    int size() const { return m_values.size(); }
    JsonPlace operator[](int index) const
    {
        return {m_values[index], m_place, m_place->m_first + index};
    }

private:
    const JsonPlace* m_place;
    QJsonArray m_values;
};

} // namespace dbo
} // namespace vkd
