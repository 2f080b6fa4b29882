// The part of OutputList that handles the names of the outputs.

#include "project/output/OutputList.h"
#include "project/unusedName.h"

#include <QCoreApplication>

namespace workbench {

namespace {
struct ListText
{
    Q_DECLARE_TR_FUNCTIONS(workbench::OutputList)
};

QString defaultName(int number)
{
    return ListText::tr("Output %1").arg(number);
}
} // namespace

/// Returns the name, or the default name of the output at this index if the name is empty.
QString OutputList::shownName(const QString& name, int index)
{
    return name.isEmpty() ? defaultName(index + 1) : name;
}

QString OutputList::name(int index) const
{
    return shownName(m_outputs[index].name, index);
}

QStringList OutputList::names() const
{
    QStringList names;
    for (int i = 0; i < size(); ++i)
        names << name(i);
    return names;
}

QStringList OutputList::unsavedNames() const
{
    QStringList names;
    for (int i = 0; i < size(); ++i)
        if (m_outputs[i].savedIndex < 0)
            names << name(i);
    return names;
}

int OutputList::indexOf(const QString& wanted) const
{
    return indexOf(wanted, names());
}

int OutputList::indexOf(const QString& wanted, const QStringList& names)
{
    for (int i = 0; i < names.size(); ++i)
        if (names[i].compare(wanted.simplified(), Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

QString OutputList::newName() const
{
    int number = size() + 1;
    while (indexOf(defaultName(number)) >= 0)
        ++number;
    return defaultName(number);
}

QString OutputList::unusedName(const QString& name) const
{
    return workbench::unusedName(name.simplified(),
                                 [this](const QString& tried) { return indexOf(tried) >= 0; });
}

QString OutputList::faultOfName(const QString& name) const
{
    const QString simple = name.simplified();
    const int user = indexOf(simple);
    if (simple.isEmpty())
        return ListText::tr("An output needs a name.");
    if (simple.size() > LongestOutputName)
        return ListText::tr("A name has at most %1 characters.").arg(LongestOutputName);
    return user < 0 || user == m_current ? QString()
                                         : ListText::tr("Another output has this name.");
}

/// The default name depends on the position and the language, so an output has this name only while
/// it is the only output.
void OutputList::nameAll()
{
    for (int i = 0; i < size(); ++i)
        m_outputs[i].name = name(i);
}

} // namespace workbench
