#pragma once

#include <vkd_language.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>
#include <QVector>

namespace vkd {
namespace dbo {

/// An error in a model file with its position, or an empty text if the caller cancelled. Thrown
/// within the reader only.
struct ModelFileError
{
    Q_DECLARE_TR_FUNCTIONS(vkd::dbo::ModelFileError) // the German texts are in vkd_qt's translation

public:
    QString text;
};

/// A value of a model file with its path, such as `beams[12][3]` (counted from 0), so that every
/// error message contains the path. Each read operation throws a ModelFileError if the value has
/// another type.
class JsonPlace
{
public:
    JsonPlace(QJsonValue value, QString place)
        : m_value(std::move(value))
        , m_place(std::move(place))
    {
    }

    [[noreturn]] void fail(const QString& what) const;

    int integer() const;
    int positive() const;
    double real() const;
    QString string() const;
    /// Reads a text, or an object with a text for each language.
    QString title(Language language) const;
    /// Returns the elements of a list with at least `least` and, unless `most` is 0, at most `most`
    /// elements.
    QVector<JsonPlace> list(int least = 0, int most = 0) const;
    /// Throws unless this is an object with all keys of `needed` and no keys except those of the
    /// two lists.
    void checkKeys(const QStringList& needed, const QStringList& optional) const;
    bool has(const QString& key) const;
    QStringList keys() const;
    JsonPlace at(const QString& key) const;

private:
    QJsonObject object() const;

    QJsonValue m_value;
    QString m_place;
};

} // namespace dbo
} // namespace vkd
