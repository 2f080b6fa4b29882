#pragma once

#include <vkd_language.h>

#include <QCommandLineParser>

#include <memory>
#include <vector>

class QIODevice;
class VKD_H_ZOBDoc;

namespace workbench {

/// Thrown if a command fails: the reason in one line for the user.
struct CommandError
{
    QString text;
};

/// Thrown if the user has asked for the help of a command.
struct HelpWanted
{
    QString text;
};

/// The arguments of one command. Throws for unknown options and missing arguments.
class CommandLine
{
public:
    struct Option
    {
        QString name;
        QString value; ///< name of its value in the help; empty for a switch
        QString description;
    };

    /// `positional` has the names of the required arguments, then in brackets the optional ones.
    /// Dots at the end of the last name stand for any number of arguments.
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

/// Opens a project, or throws with the reason of the platform.
std::unique_ptr<VKD_H_ZOBDoc> openProject(const QString& path);

/// Returns the text of a file in UTF-8, or throws.
QString readText(const QString& path);

/// Writes to standard output; throws if this fails.
void print(const QString& text);

/// Returns the option for the language of captions and messages, and applies it to the desktop.
CommandLine::Option languageOption();
void applyLanguage(const CommandLine& commandLine);

} // namespace workbench
