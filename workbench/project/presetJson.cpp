#include "project/presetJson.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace workbench {

namespace {
const QLatin1String FormatKey("format");
const QLatin1String VersionKey("version");
const QLatin1String PresetsKey("presets");
const QLatin1String NameKey("name");
const QLatin1String DescriptionKey("description");
const QLatin1String ParametersKey("parameters");
const QLatin1String GermanKey("de");
const QLatin1String FormatName("vkd-design-presets");

struct JsonText
{
    Q_DECLARE_TR_FUNCTIONS(presetJson)
};

/// Reads the presets of a document. Stops at the first fault.
class PresetReader
{
public:
    explicit PresetReader(vkd::Language language)
        : m_language(language)
    {
    }

    PresetReading read(const QByteArray& json)
    {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(json, &error);
        if (error.error != QJsonParseError::NoError)
            fail(JsonText::tr("The JSON is invalid at byte %1: %2.")
                     .arg(QString::number(error.offset), error.errorString()));
        else if (isKnownVersion(document.object()))
            readList(document.object());
        if (!m_reading.fault.isEmpty())
            m_reading.presets.clear();
        return m_reading;
    }

private:
    bool fail(const QString& fault)
    {
        if (m_reading.fault.isEmpty())
            m_reading.fault = fault;
        return false;
    }

    bool isKnownVersion(const QJsonObject& file)
    {
        const double version = file.value(VersionKey).toDouble();
        if (file.value(FormatKey).toString() != FormatName || !(version >= 1))
            return fail(JsonText::tr("It does not contain design presets."));
        if (version > PresetVersion)
            return fail(JsonText::tr("It was written by a newer version of this program: version "
                                     "%1 of the format, and this program reads up to version %2.")
                            .arg(version)
                            .arg(PresetVersion));
        return hasOnly(file, {FormatKey, VersionKey, PresetsKey});
    }

    bool hasOnly(const QJsonObject& object, const QVector<QLatin1String>& known)
    {
        const QStringList keys = object.keys();
        for (const QString& key : keys)
            if (!known.contains(QLatin1String(key.toLatin1())))
                return fail(JsonText::tr("The field \"%1\" is unknown.").arg(key));
        return true;
    }

    void readList(const QJsonObject& file)
    {
        if (!file.value(PresetsKey).isArray())
            fail(JsonText::tr("The field \"%1\" is missing.").arg(PresetsKey));
        const QJsonArray presets = file.value(PresetsKey).toArray();
        for (const QJsonValue& preset : presets)
            readPreset(preset.toObject());
    }

    void readPreset(const QJsonObject& object)
    {
        if (!hasOnly(object, {NameKey, DescriptionKey, ParametersKey, GermanKey}) ||
            !hasOnly(object.value(GermanKey).toObject(), {NameKey, DescriptionKey}))
            return;
        Preset preset{text(object, NameKey).simplified(), text(object, DescriptionKey), {}};
        if (preset.name.isEmpty() || preset.name.size() > LongestPresetName)
            fail(JsonText::tr("Preset %1 needs a name of at most %2 characters.")
                     .arg(m_reading.presets.size() + 1)
                     .arg(LongestPresetName));
        else if (findPreset(m_reading.presets, preset.name))
            fail(JsonText::tr("There are two presets \"%1\".").arg(preset.name));
        else if (readParameters(object.value(ParametersKey).toObject(), &preset))
            m_reading.presets << preset;
    }

    QString text(const QJsonObject& object, QLatin1String key) const
    {
        const QJsonValue german = object.value(GermanKey).toObject().value(key);
        return m_language == vkd::Language::German && german.isString()
                   ? german.toString()
                   : object.value(key).toString();
    }

    bool readParameters(const QJsonObject& object, Preset* preset)
    {
        for (auto entry = object.begin(); entry != object.end(); ++entry) {
            if (!entry.value().isDouble() && !entry.value().isNull())
                return fail(JsonText::tr("\"%1\": the value of \"%2\" is not a number.")
                                .arg(preset->name, entry.key()));
            preset->parameters.insert(entry.key(), entry.value().isNull()
                                                       ? QVariant()
                                                       : QVariant(entry.value().toDouble()));
        }
        if (preset->parameters.isEmpty())
            return fail(JsonText::tr("\"%1\" has no parameters.").arg(preset->name));
        return true;
    }

    vkd::Language m_language;
    PresetReading m_reading;
};

QJsonObject objectOf(const Preset& preset)
{
    QJsonObject parameters;
    for (auto entry = preset.parameters.begin(); entry != preset.parameters.end(); ++entry)
        parameters.insert(entry.key(), entry.value().isNull()
                                           ? QJsonValue(QJsonValue::Null)
                                           : QJsonValue(entry.value().toDouble()));
    return {
        {NameKey, preset.name}, {DescriptionKey, preset.description}, {ParametersKey, parameters}};
}
} // namespace

PresetReading readPresets(const QByteArray& json, vkd::Language language)
{
    return PresetReader(language).read(json);
}

QByteArray presetsJson(const PresetList& presets)
{
    QJsonArray list;
    for (const Preset& preset : presets)
        list << objectOf(preset);
    const QJsonObject file{
        {FormatKey, FormatName}, {VersionKey, PresetVersion}, {PresetsKey, list}};
    return QJsonDocument(file).toJson();
}

} // namespace workbench
