#include "DesignDesk.h"

#include "WidgetTestSupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int TypeColumn = 1; // uses the cell editors of the framework
} // namespace

DesignDesk::DesignDesk(HostProject& project)
    : page(new VKD_P_DesignParameter(project.doc(), project.doc(), this, false, true))
{
    (new QVBoxLayout(this))->addWidget(page);
    page->init();
    resize(1000, 500);
    show();
    if (!QTest::qWaitForWindowActive(this, Patience))
        qFatal("the dialog was not activated");
    table()->setFocus();
}

DesignDesk::DesignDesk(HostProject& project, const std::vector<tagZOB_QUAD_RIM>& records)
    : DesignDesk(project)
{
    project.setRecords(records);
    page->readZob();
}

QComboBox* DesignDesk::groupCombo() const
{
    const QList<QComboBox*> found =
        table()->findChildren<QComboBox*>(QStringLiteral("comboGroups"));
    for (QComboBox* combo : found) // closed editors exist until the event loop deletes them
        if (combo->parentWidget() ==
            table()->cellWidget(table()->currentRow(), table()->currentColumn()))
            return combo;
    return nullptr;
}

QString DesignDesk::row(int number) const
{
    QStringList texts;
    for (int column = 0; column < table()->columnCount(); ++column)
        texts << table()->item(number, column)->text();
    return texts.join(QLatin1Char('|')).replace(QLatin1Char('\n'), QLatin1Char('/'));
}

QString DesignDesk::groups() const
{
    QStringList texts;
    for (int number = 0; number < table()->rowCount(); ++number)
        texts << table()->item(number, 0)->text();
    return texts.join(QLatin1Char('|'));
}

QString DesignDesk::state() const
{
    QStringList texts;
    for (int number = 0; number < table()->rowCount(); ++number)
        texts << row(number) + table()->item(number, 0)->toolTip();
    for (const QModelIndex& cell : table()->selectionModel()->selectedIndexes())
        texts << QStringLiteral("%1,%2").arg(cell.row()).arg(cell.column());
    const QModelIndex current = table()->currentIndex();
    return texts.join(QLatin1Char('\n')) +
           QStringLiteral(" at %1,%2").arg(current.row()).arg(current.column());
}

QString DesignDesk::undoText() const
{
    return testsupport::find<QAction>(*page, "undo")->text();
}

QString DesignDesk::editors() const
{
    QStringList places;
    for (int number = 0; number < table()->rowCount(); ++number)
        for (int column = 0; column < table()->columnCount(); ++column)
            if (column != TypeColumn && table()->cellWidget(number, column))
                places << QStringLiteral("%1,%2").arg(number).arg(column);
    return places.join(QLatin1Char(' '));
}

QString DesignDesk::notice() const
{
    const QLabel* label =
        findChild<QWidget*>(QStringLiteral("rowsNotice"))->findChildren<QLabel*>().last();
    const QString whole = label->accessibleName();
    const QString shown = label->text().section(QChar(0x2026), 0, 0); // it may be elided
    return whole.startsWith(shown) && whole.isEmpty() == shown.isEmpty() ? whole : shown;
}

void DesignDesk::press(const char* button)
{
    QTest::mouseClick(findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
}

void DesignDesk::keys(const std::vector<Qt::Key>& keys)
{
    for (Qt::Key key : keys)
        QTest::keyClick(table(), key);
}

tagZOB_QUAD_RIM record(int group, int type, float minimum)
{
    tagZOB_QUAD_RIM made = VKD_P_DesignParameter::getDefaultMerPara(false);
    made.group = group;
    made.type = type;
    made.aso = minimum;
    return made;
}

void confirmGroups(const QString& typed)
{
    testsupport::whenModal([typed](QWidget* dialog) {
        QTest::keyClicks(testsupport::find<QLineEdit>(*dialog, "input"), typed);
        QTest::mouseClick(testsupport::find<QPushButton>(*dialog, "none"), Qt::LeftButton);
        QTest::keyClick(testsupport::find<QLineEdit>(*dialog, "input"), Qt::Key_Enter);
        qobject_cast<QDialog*>(dialog)->accept();
    });
}
