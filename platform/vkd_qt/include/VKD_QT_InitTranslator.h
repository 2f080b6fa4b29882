#pragma once

#include "vkd_qt_export.h"

#include <QByteArray>
#include <QScopedPointer>

class QTranslator;

/// Keeps the translations of one module installed, for as long as the object lives and in every
/// application that runs meanwhile. Made for a global object in the module's library: it may be
/// built before there is an application and destroyed after it. The language is that of setting 102
/// when the application starts. English is what the source texts are written in and needs no file;
/// German is looked for in the resource ":/translations/<module>_de.qm", then in a file of that
/// name in Qt's folder of translations, and without either the source texts stay. For the GUI
/// thread only.
class VKD_QT_EXPORT VKD_QT_InitTranslator
{
public:
    explicit VKD_QT_InitTranslator(const char* module);
    ~VKD_QT_InitTranslator();

    /// To be called after a change of setting 102 while an application runs: every living object
    /// changes to the new language, and widgets get QEvent::LanguageChange.
    static void languageChanged();

private:
    Q_DISABLE_COPY(VKD_QT_InitTranslator)

    void install();

    QByteArray m_module;
    QScopedPointer<QTranslator> m_translator;
};
