#include "exchange/rowParameters.h"

#include "exchange/rowColumns.h"
#include "exchange/rowTable.h"
#include "exchange/shortestText.h"
#include "record/designRecord.h"

#include <vkd_h_units.h>

#include <QCoreApplication>

namespace plib {

namespace {
const QLatin1String TypeKey("type");

struct ParameterText
{
    Q_DECLARE_TR_FUNCTIONS(RowParameters)
};

double shortestNumber(float value)
{
    const auto isExact = [value](const QString& text) { return float(text.toDouble()) == value; };
    return shortestText(double(value), isExact).toDouble();
}

QString headerOf(RealField field)
{
    for (const RowColumn& column : rowColumns())
        if (column.field == field)
            return headerOf(column, vkd::desktopLanguage());
    return QString();
}

/// Returns a message if a cell with the same value would not be accepted, otherwise an empty
/// string.
QString readValue(const QVariant& value, RealField field, RowPatch* patch)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    const double factor = vkd_h_dimension(dimensionCode(field)).factor;
    const QString cell = value.isNull() ? QString()
                         : isNumber     ? QString::number(number * factor, 'g', MostDigits)
                                        : value.toString();
    const QString refusal = readNumberCell(cell, field, patch);
    if (!refusal.isEmpty())
        return ParameterText::tr("%1: %2.").arg(headerOf(field), refusal);
    patch->set(field, value.isNull() ? NotSet : float(number));
    return QString();
}

QString readType(const QVariant& value, RowPatch* patch)
{
    const double number = value.toDouble();
    const int type = int(qBound(-1.0, number, double(Circular + 1)));
    if (!value.isNull() && double(type) == number && type >= NoDesign && type <= Circular) {
        patch->setType(type);
        return QString();
    }
    return ParameterText::tr("\"%1\" is not a type.").arg(value.toString());
}
} // namespace

QVariantMap parametersOf(const tagZOB_QUAD_RIM& record)
{
    QVariantMap parameters{{TypeKey, record.type}};
    for (const NamedField& field : namedFields())
        if (field.real) {
            const float value = record.*field.real;
            parameters.insert(QString::fromLatin1(field.name),
                              value == NotSet ? QVariant() : QVariant(shortestNumber(value)));
        }
    return parameters;
}

QStringList readParameters(const QVariantMap& parameters, RowPatch* patch)
{
    QStringList faults;
    for (auto parameter = parameters.begin(); parameter != parameters.end(); ++parameter) {
        const std::optional<NamedField> field = fieldByName(parameter.key());
        if (parameter.key() == TypeKey)
            faults << readType(parameter.value(), patch);
        else if (field && field->real)
            faults << readValue(parameter.value(), field->real, patch);
        else
            faults << ParameterText::tr("There is no parameter \"%1\".").arg(parameter.key());
    }
    faults.removeAll(QString());
    return faults;
}

std::vector<DescriptionLine> describeParameters(const QVariantMap& parameters)
{
    tagZOB_QUAD_RIM record{};
    RowPatch patch;
    readParameters(parameters, &patch);
    patch.applyTo(record);
    std::vector<DescriptionLine> lines;
    if (parameters.contains(TypeKey))
        lines.push_back({headerOf(rowColumns()[1], vkd::desktopLanguage()),
                         {typeName(record.type, vkd::desktopLanguage())},
                         {}});
    const auto values = describeValues(record, [&parameters](RealField field) {
        for (const NamedField& named : namedFields())
            if (named.real == field)
                return parameters.contains(QLatin1String(named.name));
        return false;
    });
    lines.insert(lines.end(), values.begin(), values.end());
    return lines;
}

} // namespace plib
