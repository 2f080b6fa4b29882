#include "window/design/DesignPage.h"

#include "project/dialogPages.h"
#include "project/OpenProject.h"
#include "window/design/sharedGroupsQuestion.h"
#include "window/presets/presetsAction.h"

#include <vkd_dbo_model.h>
#include <VKD_H_ProjectDialogPage.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter>
#include <VKD_P_DesignParameter_Role.h>
#include <VKD_P_DesignParameter_Rows.h>
#include <VKD_QT_MessageBox.h>
#include <vkd_zob_keys.h>
#include <ZobSnapshot.h>

#include <QTableWidget>
#include <QVBoxLayout>

namespace workbench {

namespace {
using vkd::zob::keys::Design;

/// Copies the design records of the project `from` to the project `to`.
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

DesignPage::DesignPage(OpenProject* project, QWidget* parent)
    : QWidget(parent)
    , m_project(project)
    , m_desk(VKD_H_ZOBDoc::scratch())
{
    (new QVBoxLayout(this))->setContentsMargins(0, 0, 0, 0);
}

/// Destroys the page before the documents that it uses.
DesignPage::~DesignPage()
{
    delete m_page;
}

cd_error_t DesignPage::load()
{
    const ZobHandle project = m_project->handle();
    const ZobSnapshot snapshot(project);
    cd_error_t status = snapshot.status().code;
    if (status == VKD_ZOB_OK)
        status = m_project->look(ProjectPart::Design);
    if (status == VKD_ZOB_OK)
        status = copyProject();
    if (status == VKD_ZOB_OK)
        createPage();
    return status;
}

/// Copies the data that the page reads to the scratch store.
cd_error_t DesignPage::copyProject()
{
    const cd_error_t status = vkd::dbo::copySystem(m_project->handle(), m_desk->handle()).code;
    return status == VKD_ZOB_OK ? copyRecords(m_project->handle(), m_desk->handle()) : status;
}

void DesignPage::createPage()
{
    delete m_page;
    m_page = new VKD_P_DesignParameter(m_project->document(), m_desk.get(), this, false, false);
    m_page->init();
    m_page->layout()->setContentsMargins(0, 0, 0, 0);
    layout()->addWidget(m_page);
    setFocusProxy(m_page);
    addPresetsAction(m_page, m_project);
    addActions(m_page->actions()); // for a menu; a page deletes its actions
    m_rows = m_page->findChild<QObject*>(QLatin1String(vkd::plib::designparameter::RowsObject));
    connect(m_rows, SIGNAL(modifiedChanged(bool)), this, SIGNAL(modifiedChanged(bool)));
    connect(m_rows, SIGNAL(rowsChanged()), this, SIGNAL(rowsChanged()));
    connect(m_rows, SIGNAL(pickingRequested()), this, SIGNAL(pickingRequested()));
    VKD_H_ProjectDialogPage entries(m_project->handle(), DesignDialogPage);
    m_page->getEntrys(entries);
}

cd_error_t DesignPage::store(SeenPart::Newer newer)
{
    const auto put = [this] {
        VKD_H_ProjectDialogPage entries(m_project->handle(), DesignDialogPage);
        QMetaObject::invokeMethod(m_rows, "write", Q_ARG(VKD_H_ZOBDoc*, m_project->document()),
                                  Q_ARG(VKD_H_ProjectDialogPage*, &entries));
        return cd_error_t(entries.save().code);
    };
    const cd_error_t status = m_project->store(ProjectPart::Design, put, newer);
    if (status == VKD_ZOB_OK)
        m_rows->setProperty("modified", false);
    return status;
}

DesignPage::State DesignPage::state()
{
    finishEditing();
    State state{{}, {}, isModified(), table()->currentRow(), table()->currentColumn()};
    QMetaObject::invokeMethod(m_rows, "rows", Q_RETURN_ARG(QByteArray, state.rows));
    QMetaObject::invokeMethod(m_rows, "steps", Q_RETURN_ARG(QByteArray, state.steps));
    return state;
}

/// If the project cannot be read at the moment, the data that was copied before is used.
void DesignPage::restore(const State& state)
{
    copyProject();
    createPage();
    QMetaObject::invokeMethod(m_rows, "setRows", Q_ARG(QByteArray, state.rows));
    m_rows->setProperty("modified", state.isModified);
    setSteps(state);
    if (state.isModified && m_project->isOutdated(ProjectPart::Design))
        setOutdated();
}

/// Rows that have just been read are unmodified, even if they were entered on the other page.
void DesignPage::continueFrom(const State& state)
{
    setSteps(state);
    m_rows->setProperty("modified", false);
}

/// The steps also contain the state of the rows that is in the project.
void DesignPage::setSteps(const State& state)
{
    QMetaObject::invokeMethod(m_rows, "setSteps", Q_ARG(QByteArray, state.steps));
    table()->setCurrentCell(state.currentRow, state.currentColumn);
}

QTableWidget* DesignPage::table() const
{
    return m_page->findChild<QTableWidget*>(QStringLiteral("table"));
}

bool DesignPage::finishEditing()
{
    bool isAccepted = false;
    QMetaObject::invokeMethod(m_rows, "finishEditing", Q_RETURN_ARG(bool, isAccepted));
    return isAccepted;
}

bool DesignPage::isModified() const
{
    return m_rows->property("modified").toBool();
}

void DesignPage::setOutdated()
{
    m_rows->setProperty("modified", true);
}

QVector<int> DesignPage::groups(int row) const
{
    QVector<int> groups;
    QMetaObject::invokeMethod(m_rows, "groups", Q_RETURN_ARG(QVector<int>, groups),
                              Q_ARG(int, row));
    return groups;
}

bool DesignPage::setGroups(int row, const QVector<int>& groups)
{
    bool isChanged = false;
    QMetaObject::invokeMethod(m_rows, "setGroups", Q_RETURN_ARG(bool, isChanged), Q_ARG(int, row),
                              Q_ARG(QVector<int>, groups));
    return isChanged;
}

int DesignPage::rowsWithoutGroups() const
{
    int count = 0;
    for (int row = 0; row < table()->rowCount(); ++row)
        count += groups(row).isEmpty();
    return count;
}

bool DesignPage::maySharedGroupsStay()
{
    const QVector<QVector<int>> groups = sharedGroups(*table());
    const QString question = sharedGroupsQuestion(groups);
    if (question.isEmpty())
        return true;
    enum Button { Store, GoBack };
    if (VKD_QT_MessageBox::warning(this, tr("Design Parameters"), question,
                                   tr("&Store All the Same"), tr("&Go Back"), QString(), GoBack,
                                   GoBack) == Store)
        return true;
    for (int row = 0; row < groups.size(); ++row)
        if (!groups[row].isEmpty()) {
            table()->setCurrentCell(row, 0);
            break;
        }
    table()->setFocus();
    return false;
}

} // namespace workbench
