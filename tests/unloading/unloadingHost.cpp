// A desktop that uses the library only through a plug-in, which it unloads and loads again. Usage:
// unloadingHost PLUGIN WHAT. The program is linked only to Qt, so that it does not keep other
// libraries loaded. A crash counts as a failure, even at the end of the process.

#include <QApplication>
#include <QFile>
#include <QLibrary>
#include <QRegularExpression>
#include <QTreeWidget>

#include <cstdio>
#include <memory>

namespace {
std::shared_ptr<void> document; // older than all objects of the plug-in

void require(bool condition, const QString& what)
{
    if (condition)
        return;
    std::fputs(qPrintable(what + QLatin1Char('\n')), stderr);
    std::_Exit(1);
}

/// Returns the names of the suite's libraries that are loaded.
QString mapped()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    require(maps.open(QIODevice::ReadOnly), maps.errorString());
    QStringList names;
    const QRegularExpression library(QStringLiteral("/lib(vkd_\\w+|pagesPlugin)(-qt6)?\\.so"));
    for (auto i = library.globalMatch(QString::fromLocal8Bit(maps.readAll())); i.hasNext();)
        names << i.next().captured(1);
    names.removeDuplicates();
    names.sort();
    return names.join(QLatin1Char(' '));
}

/// Uses the received objects in the ways in which Qt may use them: paints icons, translates
/// strings, sends events, and creates and destroys values of all types. Checks that Qt's own
/// strings are still English although the language of the plug-in is German.
void useApplication()
{
    const QString cancel = QCoreApplication::translate("QPlatformTheme", "Cancel");
    require(cancel == QLatin1String("Cancel"), cancel);
    QTreeWidget tree;
    new QTreeWidgetItem(&tree, {QStringLiteral("own item")});
    tree.show();
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(window, &change);
        window->grab();
    }
    QCoreApplication::processEvents();
    for (int id = QMetaType::User; QMetaType::isRegistered(id); ++id) {
        const QMetaType type(id);
        type.destroy(type.create());
    }
}

template <typename Result>
void call(QLibrary& library, const char* function, const QByteArray& what, Result* result)
{
    using Function = void (*)(const char*, Result*);
    reinterpret_cast<Function>(library.resolve(function))(what, result);
}

/// Returns the texts of the plug-in, which remain valid after unloading.
QStringList showAndUnload(const QString& path, const QByteArray& what)
{
    QLibrary library(path);
    library.setLoadHints({}); // clears QLibrary::PreventUnloadHint
    require(library.load(), library.errorString());
    QStringList texts;
    call(library, "show", what, &texts);
    library.unload();
    const QString platform = QStringLiteral("vkd_a vkd_a_core vkd_aniview vkd_dbo vkd_grouptable "
                                            "vkd_h vkd_h_core vkd_properties_qt vkd_q vkd_qt "
                                            "vkd_qt_core vkd_qt_icon vkd_t");
    require(mapped() == platform, QLatin1String("mapped: ") + mapped());
    return texts;
}

/// Leaves two documents open when the process ends with the plug-in loaded: a document of the host,
/// held by an object that is older than all objects of the plug-in, and a document of the plug-in.
void keepDocuments(const QString& path)
{
    QLibrary library(path);
    QStringList texts;
    call(library, "show", "document", &texts);
    call(library, "openForHost", "", &document);
    require(bool(document), QStringLiteral("no document"));
}
} // namespace

int main(int argc, char* argv[])
{
    const QString plugin = QString::fromLocal8Bit(argv[1]);
    const QByteArray what = argv[2];
    for (int turn = 0; turn < 2; ++turn) { // the second application starts without the plug-in
        QApplication application(argc, argv);
        useApplication();
        const QStringList texts = showAndUnload(plugin, what);
        require(!texts.join(QString()).isEmpty(), QStringLiteral("nothing shown"));
        if (turn == 0) // clears the style's cache of the last painted item
            useApplication();
        showAndUnload(plugin, what);
    }
    if (what == "document")
        keepDocuments(plugin);
    return 0;
}
