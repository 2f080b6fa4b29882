#include "window/design/DesignDialog.h"

#include "project/dialogPages.h"
#include "project/OpenProject.h"
#include "window/design/sharedGroupsQuestion.h"
#include "window/presets/presetsAction.h"
#include "window/support/HelpKey.h"
#include "window/support/WindowGeometry.h"
#include "window/support/withinScreen.h"

#include <vkd_dbo_model.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter>
#include <VKD_P_DesignParameter_Entry.h>
#include <VKD_P_DesignParameter_Role.h>
#include <VKD_QT_MessageBox.h>
#include <VKD_QT_Ok.h>
#include <vkd_zob_keys.h>
#include <ZobSnapshot.h>

#include <QMenuBar>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace workbench {

namespace {
constexpr int OkAndCancel = 3;

using vkd::zob::keys::Design;

/// Replaces the design records of the project `to` with the records of the project `from`.
cd_error_t copyRecords(ZobHandle from, ZobHandle to)
{
    int length = 0;
    cd_error_t put = vkd_zob_put(to.index(), Design.key1, Design.key2, nullptr, &length, 0);
    QByteArray record(1024, Qt::Uninitialized);
    cd_error_t status = VKD_ZOB_OK;
    for (int position = 0; put == VKD_ZOB_OK && status == VKD_ZOB_OK;) {
        length = record.size();
        status =
            vkd_zob_get(from.index(), Design.key1, Design.key2, record.data(), &length, position);
        if (status == VKD_ZOB_CUT) {
            record.resize(2 * record.size());
            status = VKD_ZOB_OK;
        } else if (status == VKD_ZOB_OK) {
            put = vkd_zob_put(to.index(), Design.key1, Design.key2, record.constData(), &length, 1);
            ++position;
        }
    }
    vkd_zob_free_ex(from.index(), Design.key1, Design.key2);
    const bool isWhole = status == VKD_ZOB_END || status == VKD_ZOB_NO_KEY;
    return put != VKD_ZOB_OK || isWhole ? put : status;
}

/// Returns, for each row, its groups that are also in other rows.
QVector<QVector<int>> sharedGroups(const QTableWidget& table)
{
    QVector<QVector<int>> groups;
    for (int row = 0; row < table.rowCount(); ++row) {
        const QVariant shared =
            table.item(row, 0)->data(vkd::plib::designparameter::SharedGroupsRole);
        groups << shared.value<QVector<int>>();
    }
    return groups;
}
} // namespace

DesignDialog::DesignDialog(OpenProject* project, QWidget* parent)
    : VKD_H_Dialog(parent, "DesignDialog")
    , m_project(project)
    , m_desk(VKD_H_ZOBDoc::scratch())
{
    setWindowTitle(tr("Design Parameters"));
    setHelpTopic(this, "MERDAN/PARA");
    auto menus = new QMenuBar(this);
    menus->setNativeMenuBar(false);
    m_edit = menus->addMenu(tr("&Edit"));
    (new QVBoxLayout(this))->setMenuBar(menus);
    resizeWithinScreen(this, {fontMetrics().averageCharWidth() * 150, fontMetrics().height() * 28});
    new WindowGeometry(this);
}

/// Destroys the page before the documents that it uses.
DesignDialog::~DesignDialog()
{
    delete m_page;
}

cd_error_t DesignDialog::load()
{
    const ZobHandle project = m_project->handle();
    const ZobSnapshot snapshot(project);
    cd_error_t status = snapshot.status().code;
    if (status == VKD_ZOB_OK)
        status = m_project->look(ProjectPart::Design);
    if (status == VKD_ZOB_OK)
        status = vkd::dbo::copySystem(project, m_desk->handle()).code;
    if (status == VKD_ZOB_OK)
        status = copyRecords(project, m_desk->handle());
    if (status == VKD_ZOB_OK)
        m_entries = VKD_H_ProjectDialogPage(project, DesignDialogPage);
    return status;
}

/// Replaces the buttons as well, so that they follow the page in the tab order.
void DesignDialog::showPage()
{
    delete m_page;
    delete m_buttons;
    m_page = new VKD_P_DesignParameter(m_project->document(), m_desk.get(), this, false, false);
    m_page->init(); // before creating the buttons, which are last in the tab order
    m_buttons = new VKD_QT_Ok(this, OkAndCancel, "okayandcancelbutton");
    layout()->addWidget(m_page);
    layout()->addWidget(m_buttons);
    static_cast<QVBoxLayout*>(layout())->setStretchFactor(m_page, 1);
    connect(m_buttons->cmdOk(), &QPushButton::clicked, this, &DesignDialog::accept);
    connect(m_buttons->cmdCancel(), &QPushButton::clicked, this, &DesignDialog::reject);
    m_page->getEntrys(m_entries);
    addPresetsAction(m_page, m_project);
    m_edit->addActions(m_page->actions()); // a page deletes its actions
}

cd_error_t DesignDialog::store(SeenPart::Newer newer)
{
    const auto put = [this] {
        const VkdStatus saved = m_entries.save();
        return saved.isOk() ? copyRecords(m_desk->handle(), m_project->handle()) : saved.code;
    };
    return m_project->store(ProjectPart::Design, put, newer);
}

/// The entries belong to a project, so the page's entries are copied to the other project.
void DesignDialog::continueWithCopy()
{
    m_entries = VKD_H_ProjectDialogPage(m_project->handle(), DesignDialogPage);
    m_page->setEntrys(m_entries);
}

int DesignDialog::rowsWithoutGroups() const
{
    int count = 0;
    const QLatin1String prefix(vkd::plib::designparameter::EntryPrefix);
    while (!m_entries.getEntry(prefix + QString::number(count + 1), QString()).isEmpty())
        ++count;
    return count;
}

/// Asks the user if several rows have the same group, because each row would store a record for it.
/// If the user goes back, selects the first such row.
bool DesignDialog::maySharedGroupsStay()
{
    const auto table = m_page->findChild<QTableWidget*>(QStringLiteral("table"));
    const QVector<QVector<int>> groups = sharedGroups(*table);
    const QString question = sharedGroupsQuestion(groups);
    if (question.isEmpty())
        return true;
    enum Button { Store, GoBack };
    if (VKD_QT_MessageBox::warning(this, windowTitle(), question, tr("&Store All the Same"),
                                   tr("&Go Back"), QString(), GoBack, GoBack) == Store)
        return true;
    for (int row = 0; row < groups.size(); ++row)
        if (!groups[row].isEmpty()) {
            table->setCurrentCell(row, 0);
            break;
        }
    table->setFocus();
    return false;
}

void DesignDialog::accept()
{
    if (!m_page->checkVals() || !maySharedGroupsStay())
        return;
    VKD_H_Dialog::accept();
    if (result() == Accepted)
        m_page->setEntrys(m_entries);
}

} // namespace workbench
