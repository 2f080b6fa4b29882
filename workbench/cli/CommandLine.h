#pragma once

#include <vkd_language.h>

#include <QCommandLineParser>

#include <memory>
#include <vector>

class QIODevice;
class VKD_H_ZOBDoc;

namespace workbench {

/// Why a command cannot do its work; one line for the user.
struct CommandError
{
    QString text;
};

/// The command was asked for its help, which is the result.
struct HelpWanted
{
    QString text;
};

/// The arguments of one command. Options that nobody knows and missing arguments throw.
class CommandLine
{
public:
    struct Option
    {
        QString name;
        QString value; ///< how the help calls its value; empty for a switch
        QString description;
    };

    /// `positional` names the arguments that are needed, then in brackets those that are not; dots
    /// at the end of the last one stand for any number of them.
    CommandLine(const QString& description, const QStringList& positional,
                const std::vector<Option>& options);
    void parse(const QStringList& arguments);

    QString argument(int index) const;
    QStringList argumentsFrom(int index) const;
    bool has(const char* option) const;
    QString value(const char* option) const;
    QStringList values(const char* option) const;
    int number(const char* option, int otherwise) const;
    /// Returns the language that an option names; `otherwise` if the option is not given.
    vkd::Language language(const char* option, vkd::Language otherwise) const;

private:
    QCommandLineParser m_parser;
    QStringList m_positional;
};

/// Opens a project or throws with the reason that the platform gave.
std::unique_ptr<VKD_H_ZOBDoc> openProject(const QString& path);

/// The whole text of a file in UTF-8, or throws.
QString readText(const QString& path);

/// Writes to standard output; throws if it cannot take the text.
void print(const QString& text);

/// The option for the language of captions and messages, and its effect on the desktop's language.
CommandLine::Option languageOption();
void applyLanguage(const CommandLine& commandLine);

} // namespace workbench
