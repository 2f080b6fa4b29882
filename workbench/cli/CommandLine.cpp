#include "cli/CommandLine.h"

#include "cli/PlatformLog.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_language.h>
#include <VKD_QT_InitTranslator.h>
#include <vkd_readFile.h>

#include <QFile>

#include <cstdio>

namespace workbench {

CommandLine::CommandLine(const QString& description, const QStringList& positional,
                         const std::vector<Option>& options)
    : m_positional(positional)
{
    m_parser.setApplicationDescription(description);
    m_parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Prints this help.")});
    for (const QString& name : positional)
        m_parser.addPositionalArgument(name, QString(), name);
    for (const Option& option : options)
        m_parser.addOption({option.name, option.description, option.value});
}

void CommandLine::parse(const QStringList& arguments)
{
    if (!m_parser.parse(arguments))
        throw CommandError{m_parser.errorText()};
    if (m_parser.isSet(QStringLiteral("help"))) {
        // The parser does not know that the first argument is the command, so its usage line is
        // replaced.
        const QString text = m_parser.helpText();
        throw HelpWanted{QStringLiteral("Usage: plib_workbench %1 ").arg(arguments.first()) +
                         text.mid(text.indexOf(QLatin1String("[options]")))};
    }
    const int given = m_parser.positionalArguments().size();
    const bool takesMore = m_positional.last().endsWith(QLatin1String("...]"));
    if (given > m_positional.size() && !takesMore)
        throw CommandError{QStringLiteral("unexpected argument \"%1\"")
                               .arg(m_parser.positionalArguments().at(m_positional.size()))};
    if (given < m_positional.size() && !m_positional[given].startsWith(QLatin1Char('[')))
        throw CommandError{QStringLiteral("%1 is missing").arg(m_positional[given])};
}

QString CommandLine::argument(int index) const
{
    return m_parser.positionalArguments().value(index);
}

QStringList CommandLine::argumentsFrom(int index) const
{
    return m_parser.positionalArguments().mid(index);
}

bool CommandLine::has(const char* option) const
{
    return m_parser.isSet(QString::fromLatin1(option));
}

QString CommandLine::value(const char* option) const
{
    return m_parser.value(QString::fromLatin1(option));
}

QStringList CommandLine::values(const char* option) const
{
    return m_parser.values(QString::fromLatin1(option));
}

int CommandLine::number(const char* option, int otherwise) const
{
    if (!has(option))
        return otherwise;
    bool isNumber = false;
    const int number = value(option).toInt(&isNumber);
    if (!isNumber)
        throw CommandError{QStringLiteral("--%1 must be a whole number, not \"%2\"")
                               .arg(QLatin1String(option), value(option))};
    return number;
}

vkd::Language CommandLine::language(const char* option, vkd::Language otherwise) const
{
    if (!has(option))
        return otherwise;
    const QString name = value(option);
    if (name == QLatin1String("english"))
        return vkd::Language::English;
    if (name != QLatin1String("german"))
        throw CommandError{QStringLiteral("--%1 must be english or german, not \"%2\"")
                               .arg(QLatin1String(option), name)};
    return vkd::Language::German;
}

std::unique_ptr<VKD_H_ZOBDoc> openProject(const QString& path)
{
    VkdStatus status;
    auto document = VKD_H_ZOBDoc::open(path, &status);
    if (!document)
        throw CommandError{status.reason};
    return document;
}

QByteArray readBytes(const QString& path)
{
    QByteArray bytes;
    const VkdStatus status = vkd_readFile(path, &bytes);
    if (!status.isOk())
        throw CommandError{QStringLiteral("cannot read %1: %2").arg(path, status.reason)};
    return bytes;
}

QString readText(const QString& path)
{
    return QString::fromUtf8(readBytes(path));
}

void print(const QString& text)
{
    QFile out;
    const QByteArray bytes = text.toUtf8();
    if (!out.open(stdout, QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.flush())
        throw CommandError{QStringLiteral("cannot write the result: %1").arg(out.errorString())};
}

void warn(const QString& text)
{
    std::fprintf(stderr, "plib_workbench: warning: %s\n", qUtf8Printable(text.simplified()));
}

CommandLine::Option languageOption()
{
    return {QStringLiteral("language"), QStringLiteral("german|english"),
            QStringLiteral("Language of captions and titles; by default the desktop's language.")};
}

void applyLanguage(const CommandLine& commandLine)
{
    const vkd::Language language = commandLine.language("language", vkd::desktopLanguage());
    if (language == vkd::desktopLanguage())
        return; // the translations are already loaded
    vkd::setDesktopLanguage(language);
    VKD_QT_InitTranslator::languageChanged();
}

} // namespace workbench
