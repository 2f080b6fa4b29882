#pragma once

#include "output/savedSettings.h"

#include <vkd_qt_xmlpart.h>

namespace plib {

/// The saved string of an output page, read as parts and as settings. The string may come from
/// another kind of page, so callers check that it has a part before they change the widget.
class SavedPage
{
public:
    /// `present` are the settings that remain where the string has no valid part.
    SavedPage(const QString& xml, const OutputSettings& present)
        : m_xml(xml)
        , m_settings(present)
    {
        applySavedSettings([this](const char* tag) { return part(tag); }, &m_settings);
    }

    const QString& xml() const { return m_xml; }
    const OutputSettings& settings() const { return m_settings; }
    /// Returns the text of the part with this tag, null if there is none.
    QString part(const char* tag) const { return vkd_qt_readXMLpart(m_xml, 0, QLatin1String(tag)); }
    bool has(const char* tag) const { return !part(tag).isNull(); }

private:
    QString m_xml;
    OutputSettings m_settings;
};

/// Returns a part of the saved string.
inline QString savedPart(const char* tag, const QString& value)
{
    return vkd_qt_writeXMLpart(value, QLatin1String(tag));
}

} // namespace plib
