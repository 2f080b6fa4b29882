#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>
#include <QVector>

namespace vkd {
namespace dbo {

/// What is wrong with a model file and where, or nothing if the caller wants no more; thrown inside
/// of the reader only.
struct ModelFileError
{
    Q_DECLARE_TR_FUNCTIONS(vkd::dbo::ModelFileError) // the German texts are those of vkd_qt

public:
    QString text;
};

/// A value of a model file that knows its place, such as `beams[12][3]` (counted from 0), so that
/// whatever is wrong with it is reported with that place. Each reading operation throws a
/// ModelFileError if the value is of another sort.
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
    /// A text, or an object with a text for each language.
    QString title(int language) const;
    /// The elements of a list of at least `least` and, unless `most` is 0, at most `most` of them.
    QVector<JsonPlace> list(int least = 0, int most = 0) const;
    /// Sees to it that this is an object with all of `needed` and no other keys than those of both.
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
