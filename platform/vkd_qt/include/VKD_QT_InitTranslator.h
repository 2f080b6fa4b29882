#pragma once

#include "vkd_qt_export.h"

#include <QByteArray>
#include <QScopedPointer>

class QTranslator;

/// Installs the translations of one module in every application that runs during the lifetime of
/// the object. It is meant for a global object in the module's library and may be constructed
/// before the application and destroyed after it. The language is setting 102 at the start of the
/// application. English is the language of the source texts and needs no file. German is loaded
/// from the resource ":/translations/<module>_de.qm", or else from a file of that name in Qt's
/// translations folder; without both, the source texts remain. Use it in the GUI thread only.
class VKD_QT_EXPORT VKD_QT_InitTranslator
{
public:
    explicit VKD_QT_InitTranslator(const char* module);
    ~VKD_QT_InitTranslator();

    /// Reloads the translations; call this after a change of setting 102 while an application runs.
    /// All objects change to the new language, and widgets receive QEvent::LanguageChange.
    static void languageChanged();

private:
    Q_DISABLE_COPY(VKD_QT_InitTranslator)

    void install();

    QByteArray m_module;
    QScopedPointer<QTranslator> m_translator;
};
