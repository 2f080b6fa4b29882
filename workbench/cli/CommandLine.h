#pragma once

#include <vkd_language.h>

#include <QCommandLineParser>

#include <memory>
#include <vector>

class QIODevice;
class VKD_H_ZOBDoc;

namespace workbench {

/// Thrown if a command fails; `text` is a one-line reason for the user.
struct CommandError
{
    QString text;
};

/// Thrown if the arguments request help for a command; `text` is the help text.
struct HelpWanted
{
    QString text;
};

/// Parses the arguments of one command. Throws a CommandError for unknown options and missing
/// arguments, so that the commands do not have to handle these errors.
class CommandLine
{
public:
    struct Option
    {
        QString name;
        QString value; ///< placeholder of the value in the help; empty for a switch
        QString description;
    };

    /// `positional` lists the required arguments, followed by the optional arguments in brackets.
    /// An ellipsis at the end of the last name means any number of arguments.
    CommandLine(const QString& description, const QStringList& positional,
                const std::vector<Option>& options);
    void parse(const QStringList& arguments);

    QString argument(int index) const;
    QStringList argumentsFrom(int index) const;
    bool has(const char* option) const;
    QString value(const char* option) const;
    QStringList values(const char* option) const;
    int number(const char* option, int otherwise) const;
    /// Returns the language given by an option, or `otherwise` if the option is missing.
    vkd::Language language(const char* option, vkd::Language otherwise) const;

private:
    QCommandLineParser m_parser;
    QStringList m_positional;
};

/// Opens a project, or throws a CommandError with the reason from the platform.
std::unique_ptr<VKD_H_ZOBDoc> openProject(const QString& path);

/// These functions return the bytes of a file, or the text of a UTF-8 file. They throw a
/// CommandError if reading fails.
QByteArray readBytes(const QString& path);
QString readText(const QString& path);

/// Writes to standard output. Throws a CommandError if writing fails, for example on a full disk.
void print(const QString& text);
/// Prints a warning to standard error.
void warn(const QString& text);

/// Returns the option for the language of captions and messages.
CommandLine::Option languageOption();
/// Sets the desktop's language to the value of languageOption().
void applyLanguage(const CommandLine& commandLine);

} // namespace workbench
