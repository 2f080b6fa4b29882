#include "window/textoutput/CombinationTable.h"

#include <VKD_P_RadioGroup>
#include <VKD_QT4_ComboBox.h>

#include <QRegularExpression>

namespace workbench {

namespace {
using Group = VKD_P_RadioGroup;

constexpr struct
{
    int kind;
    const char* text;
} CombinationKinds[] = {
    {CombinationTable::OtherKind,
     QT_TRANSLATE_NOOP("workbench::CombinationTable", "Fundamental, other")},
    {Group::All_A, QT_TRANSLATE_NOOP("workbench::CombinationTable", "Accidental")},
    {Group::All_F, QT_TRANSLATE_NOOP("workbench::CombinationTable", "Fire")},
    {Group::All_E, QT_TRANSLATE_NOOP("workbench::CombinationTable", "Earthquake")},
    {Group::All_RARE, QT_TRANSLATE_NOOP("workbench::CombinationTable", "Characteristic")},
    {Group::All_FREQ, QT_TRANSLATE_NOOP("workbench::CombinationTable", "Frequent")},
    {Group::All_PERM, QT_TRANSLATE_NOOP("workbench::CombinationTable", "Quasi-permanent")},
    {Group::All_NONF, QT_TRANSLATE_NOOP("workbench::CombinationTable", "Non-frequent")},
};

/// Guesses the kind from words in the title, in either language. The first match is used, so
/// "non-frequent" comes before "frequent".
int proposedKind(const QString& title)
{
    static const struct
    {
        int kind;
        QRegularExpression words;
    } proposals[] = {
        {Group::All_F, QRegularExpression(QStringLiteral("\\b(fire|brand(?!enburg))"))},
        {Group::All_E, QRegularExpression(QStringLiteral("earthquake|seismic|erdbeben"))},
        {Group::All_A, QRegularExpression(QStringLiteral("accidental|au(ß|ss)ergewöhnlich"))},
        {Group::All_PERM, QRegularExpression(QStringLiteral("quasi[- ]?(permanent|ständig)"))},
        {Group::All_NONF,
         QRegularExpression(QStringLiteral("(non|nicht)[- ]?(frequent|häufig)|infrequent"))},
        {Group::All_FREQ, QRegularExpression(QStringLiteral("frequent|häufig"))},
        {Group::All_RARE, QRegularExpression(QStringLiteral("characteristic|charakteristisch|"
                                                            "\\brare\\b|selten"))},
    };
    const QString words = title.toLower();
    for (const auto& proposal : proposals)
        if (proposal.words.match(words).hasMatch())
            return proposal.kind;
    return CombinationTable::OtherKind;
}
} // namespace

CombinationTable::CombinationTable(const QVector<vkd::dbo::LoadCase>& rows, QWidget* parent,
                                   const char* name)
    : PickTable(rows, parent, name)
{
    QVector<QWidget*> boxes;
    for (int row = 0; row < rows.size(); ++row) {
        m_kinds << newKindBox(row);
        boxes << m_kinds.last();
    }
    addWidgetColumn(tr("Kind of combination"), boxes);
}

VKD_QT4_ComboBox* CombinationTable::newKindBox(int row)
{
    auto box = new VKD_QT4_ComboBox(viewport(), "CombinationKind");
    box->setAccessibleName(tr("Kind of combination %1").arg(numberInRow(row)));
    for (const auto& kind : CombinationKinds)
        box->addEntry(tr(kind.text), kind.kind);
    box->setCurrentId(proposedKind(titleInRow(row)));
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CombinationTable::changed);
    return box;
}

QString CombinationTable::kindInRow(int row) const
{
    return m_kinds[row]->currentText();
}

QVector<int> CombinationTable::numbersOf(int kind) const
{
    QVector<int> found;
    for (int row = 0; row < rowCount(); ++row)
        if (m_kinds[row]->getCurrentId() == kind)
            found << numberInRow(row);
    return found;
}

QMap<int, int> CombinationTable::kinds() const
{
    QMap<int, int> all;
    for (int row = 0; row < rowCount(); ++row)
        all.insert(numberInRow(row), m_kinds[row]->getCurrentId());
    return all;
}

void CombinationTable::setKinds(const QMap<int, int>& kinds)
{
    for (int row = 0; row < rowCount(); ++row) {
        const auto kind = kinds.find(numberInRow(row));
        if (kind == kinds.end() || !m_kinds[row]->setCurrentId(*kind))
            m_kinds[row]->setCurrentId(proposedKind(titleInRow(row)));
    }
}

} // namespace workbench
