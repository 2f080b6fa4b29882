#include "project/presets/presetJson.h"

#include <vkd_status.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace workbench {

namespace {
const QLatin1String FormatKey("format");
const QLatin1String VersionKey("version");
const QLatin1String PresetsKey("presets");
const QLatin1String NameKey("name");
const QLatin1String DescriptionKey("description");
const QLatin1String GermanKey("de");

struct JsonText
{
    Q_DECLARE_TR_FUNCTIONS(presetJson)
};

bool isNumberOrNull(const QJsonValue& value)
{
    return value.isDouble() || value.isNull();
}

bool isListOfTexts(const QJsonValue& value)
{
    const QJsonArray array = value.toArray();
    return value.isArray() &&
           std::all_of(array.begin(), array.end(),
                       [](const QJsonValue& element) { return element.isString(); });
}

/// The format of the contents of a preset. The messages are translated when they are used.
struct ContentsFormat
{
    QLatin1String fileFormat; ///< value of "format"
    QLatin1String key;        ///< name of the member of a preset
    bool (*isValue)(const QJsonValue& value);
    const char* otherFormat;
    const char* noContents;
    const char* wrongValue;
};

/// Returns the format of the contents for a kind of presets.
const ContentsFormat& formatOf(PresetKind kind)
{
    static const ContentsFormat design{
        QLatin1String("vkd-design-presets"),
        QLatin1String("parameters"),
        isNumberOrNull,
        QT_TRANSLATE_NOOP("presetJson", "It does not contain design presets."),
        QT_TRANSLATE_NOOP("presetJson", "\"%1\" has no parameters."),
        QT_TRANSLATE_NOOP("presetJson", "\"%1\": the value of \"%2\" is not a number."),
    };
    static const ContentsFormat plots{
        QLatin1String("vkd-plot-presets"),
        QLatin1String("plots"),
        isListOfTexts,
        QT_TRANSLATE_NOOP("presetJson", "It does not contain presets of plots."),
        QT_TRANSLATE_NOOP("presetJson", "\"%1\" has no plots."),
        QT_TRANSLATE_NOOP("presetJson",
                          "\"%1\": the captions of \"%2\" are not a list of strings."),
    };
    return kind == PresetKind::Plots ? plots : design;
}

/// Reads the presets of a document. Stops at the first fault.
class PresetReader
{
public:
    PresetReader(PresetKind kind, vkd::Language language)
        : m_format(formatOf(kind))
        , m_language(language)
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
            m_reading.fault = vkd_oneLine(fault); // it may quote a key
        return false;
    }

    bool isKnownVersion(const QJsonObject& file)
    {
        const double version = file.value(VersionKey).toDouble();
        if (file.value(FormatKey).toString() != m_format.fileFormat || !(version >= 1))
            return fail(JsonText::tr(m_format.otherFormat));
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
        if (!hasOnly(object, {NameKey, DescriptionKey, m_format.key, GermanKey}) ||
            !hasOnly(object.value(GermanKey).toObject(), {NameKey, DescriptionKey}))
            return;
        Preset preset{text(object, NameKey).simplified(), text(object, DescriptionKey), {}};
        if (preset.name.isEmpty() || preset.name.size() > LongestPresetName)
            fail(JsonText::tr("Preset %1 needs a name of at most %2 characters.")
                     .arg(m_reading.presets.size() + 1)
                     .arg(LongestPresetName));
        else if (findPreset(m_reading.presets, preset.name))
            fail(JsonText::tr("There are two presets \"%1\".").arg(preset.name));
        else if (readContents(object.value(m_format.key).toObject(), &preset))
            m_reading.presets << preset;
    }

    QString text(const QJsonObject& object, QLatin1String key) const
    {
        const QJsonValue german = object.value(GermanKey).toObject().value(key);
        return m_language == vkd::Language::German && german.isString()
                   ? german.toString()
                   : object.value(key).toString();
    }

    bool readContents(const QJsonObject& object, Preset* preset)
    {
        for (auto entry = object.begin(); entry != object.end(); ++entry)
            if (m_format.isValue(entry.value()))
                preset->contents.insert(entry.key(), valueOf(entry.value()));
            else
                return fail(JsonText::tr(m_format.wrongValue).arg(preset->name, entry.key()));
        if (preset->contents.isEmpty())
            return fail(JsonText::tr(m_format.noContents).arg(preset->name));
        return true;
    }

    /// Returns a number, a list of strings or, for null, an invalid value.
    static QVariant valueOf(const QJsonValue& value)
    {
        const QVariant result = value.toVariant();
        if (value.isArray())
            return result.toStringList();
        return value.isNull() ? QVariant() : result;
    }

    const ContentsFormat& m_format;
    vkd::Language m_language;
    PresetReading m_reading;
};

} // namespace

PresetReading readPresets(PresetKind kind, const QByteArray& json, vkd::Language language)
{
    return PresetReader(kind, language).read(json);
}

QByteArray presetsJson(PresetKind kind, const PresetList& presets)
{
    const ContentsFormat& format = formatOf(kind);
    QJsonArray list;
    for (const Preset& preset : presets)
        list << QJsonObject{{NameKey, preset.name},
                            {DescriptionKey, preset.description},
                            {format.key, QJsonObject::fromVariantMap(preset.contents)}};
    const QJsonObject file{
        {FormatKey, format.fileFormat}, {VersionKey, PresetVersion}, {PresetsKey, list}};
    return QJsonDocument(file).toJson();
}

} // namespace workbench
