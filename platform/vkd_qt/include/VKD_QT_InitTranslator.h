#pragma once

#include "vkd_qt_export.h"

#include <QByteArray>
#include <QScopedPointer>

class QTranslator;

/// Installs the translations of one module in every application that runs during the lifetime of
/// the object. The class is intended for a global object in the module's library. The object may be
/// constructed before the application and destroyed after it. The language is the value of setting
/// 102 when the application starts. English is the language of the source strings and does not need
/// a file. German is loaded from the resource ":/translations/<module>_de.qm" or from a file with
/// the same name in Qt's translations folder. If neither exists, the source strings are used. The
/// class may be used only in the GUI thread.
class VKD_QT_EXPORT VKD_QT_InitTranslator
{
public:
    explicit VKD_QT_InitTranslator(const char* module);
    ~VKD_QT_InitTranslator();

    /// Reloads the translations of all objects in the new language; widgets receive
    /// QEvent::LanguageChange. Call this after setting 102 has changed while an application is
    /// running.
    static void languageChanged();

private:
    Q_DISABLE_COPY(VKD_QT_InitTranslator)

    void install();

    QByteArray m_module;
    QScopedPointer<QTranslator> m_translator;
};
