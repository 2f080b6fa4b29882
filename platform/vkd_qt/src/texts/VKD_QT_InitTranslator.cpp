#include "VKD_QT_InitTranslator.h"

#include "vkd_qt_qt6.h"

#include <vkd_language.h>

#include <QCoreApplication>
#include <QTranslator>
#include <QVector>

namespace {

/// The list is created by the constructor of the first object, so that it outlives every static
/// object.
QVector<VKD_QT_InitTranslator*>& livingObjects()
{
    static QVector<VKD_QT_InitTranslator*> objects;
    return objects;
}

/// Registers a routine that Qt calls whenever another application object is created.
void callAtEachStart()
{
    static const bool once = [] {
        qAddPreRoutine(&VKD_QT_InitTranslator::languageChanged);
        return true;
    }();
    Q_UNUSED(once)
}
} // namespace

VKD_QT_InitTranslator::VKD_QT_InitTranslator(const char* module)
    : m_module(module)
{
    callAtEachStart();
    livingObjects().append(this);
    if (QCoreApplication::instance())
        install();
}

VKD_QT_InitTranslator::~VKD_QT_InitTranslator()
{
    livingObjects().removeOne(this);
}

void VKD_QT_InitTranslator::languageChanged()
{
    // A copy, because notified widgets may load further modules.
    const QVector<VKD_QT_InitTranslator*> objects = livingObjects();
    for (VKD_QT_InitTranslator* object : objects)
        object->install();
}

void VKD_QT_InitTranslator::install()
{
    // Each application needs a new translator, because an application drops its list of translators
    // when it is destroyed.
    m_translator.reset();
    if (vkd::desktopLanguage() != vkd::Language::German)
        return;
    m_translator.reset(new QTranslator);
    const QString file = QLatin1String(m_module) + QLatin1String("_de.qm");
    if (m_translator->load(QLatin1String(":/translations/") + file) ||
        m_translator->load(file, vkd_qt_translationsFolder()))
        QCoreApplication::installTranslator(m_translator.data());
}
