#include "designSnapshots.h"

#include "SnapshotAlbum.h"

#include <VKD_H_TableItems.h>
#include <VKD_P_DesignParameter>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTabWidget>

namespace workbench {

namespace {
constexpr int EditedRow = 2; // the row above is for the remaining groups and has no group editor
constexpr int TypeColumn = 1;

/// A dialog that contains the page.
class DesignHost : public VKD_QT_Dialog
{
public:
    explicit DesignHost(VKD_H_ZOBDoc* document)
        : m_page(new VKD_P_DesignParameter(document, document, this, false, false))
    {
        (new VKD_QT_VBoxLayout(this))->addWidget(m_page);
        m_page->init();
        m_page->readZob();
        resize(940, 420);
        show();
        activateWindow();
    }

    VKD_P_DesignParameter* page() const { return m_page; }
    QTableWidget* table() const { return findChild<QTableWidget*>(QStringLiteral("table")); }
    QPushButton* button(const char* name) const
    {
        return findChild<QPushButton*>(QLatin1String(name));
    }

    void select(int column) { table()->setCurrentCell(EditedRow, column); }
    void press(int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(table(), &event);
    }
    void setType(int type)
    {
        select(TypeColumn);
        auto item = dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(table()->currentItem());
        for (const ComboList& entry : item->entries())
            if (entry.id == type)
                item->setText(entry.text);
    }

private:
    VKD_P_DesignParameter* m_page;
};

void addCellEditors(SnapshotAlbum& album, DesignHost& host)
{
    const char* names[] = {"groups", "type", "directions", "reinforcement", "cracks"};
    for (int column = 0; column < 5; ++column) {
        host.select(column);
        if (column == TypeColumn)
            host.press(Qt::Key_F2);
        album.add(QStringLiteral("design-editor-") + QLatin1String(names[column]), &host);
        if (QWidget* list = QApplication::activePopupWidget())
            list->close();
    }
}

/// Adds a screenshot of a group dialog, or omits it if the button of the dialog is disabled because
/// the model has no such groups.
void addGroupDialog(SnapshotAlbum& album, DesignHost& host, const char* name, const char* button)
{
    if (host.button(button)->isEnabled())
        album.addModal(QLatin1String(name), [&] { host.button(button)->click(); });
    else
        album.leaveOut(QLatin1String(name));
}

void addParameterDialogs(SnapshotAlbum& album, DesignHost& host)
{
    const char* names[] = {"", "", "directions", "reinforcement", "cracks"};
    for (int type = 1; type <= 4; ++type)
        for (int column = 2; column < 5; ++column) {
            host.setType(type);
            host.select(column);
            album.addModal(
                QStringLiteral("design-%1-type%2").arg(QLatin1String(names[column])).arg(type),
                [&host] { host.press(Qt::Key_F2); });
        }
}

void addCalculator(SnapshotAlbum& album, DesignHost& host)
{
    host.select(3);
    const auto openCalculator = [&album](QWidget* dialog) {
        album.addModal(
            QStringLiteral("calculator"),
            [dialog] { dialog->findChild<QPushButton*>(QStringLiteral("Calc"))->click(); },
            [&album](QWidget* calculator) {
                calculator->findChild<QTabWidget*>()->setCurrentIndex(1);
                calculator->findChild<QLineEdit*>(QStringLiteral("depth"))
                    ->setText(QStringLiteral("200"));
                album.add(QStringLiteral("calculator-minimum"), calculator);
            });
    };
    album.addModal(
        QStringLiteral("design-reinforcement"), [&host] { host.press(Qt::Key_F2); },
        openCalculator);
}

void addHelp(SnapshotAlbum& album, DesignHost& host)
{
    host.page()->showHelp();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (window != &host && window->isVisible()) {
            album.add(QStringLiteral("design-help"), window);
            window->close();
        }
}
} // namespace

void addDesignSnapshots(SnapshotAlbum& album, VKD_H_ZOBDoc* document)
{
    DesignHost host(document);
    while (host.table()->rowCount() <= EditedRow)
        host.button("btnNew")->click();
    album.add(QStringLiteral("design-page"), &host);
    addCellEditors(album, host);
    host.select(0);
    addGroupDialog(album, host, "groups", "buttonGroups");
    addGroupDialog(album, host, "secondary-groups", "buttonSekGroups");
    addParameterDialogs(album, host);
    addCalculator(album, host);
    addHelp(album, host);
    host.button("btnNew")->click();
    album.addModal(QStringLiteral("design-warning"), [&host] { host.page()->checkVals(); });
}

} // namespace workbench
