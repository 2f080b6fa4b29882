#include "window/output/OutputDialog.h"

#include "window/output/OutputOffers.h"
#include "window/output/TreeViewMemory.h"
#include "window/output/UserDefinedView.h"
#include "window/support/DisabledHint.h"
#include "window/support/HelpKey.h"

#include <AnimatorView.h>
#include <vkd_dbo_camera.h>
#include <vkd_dbo_model.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_WidgetGraphicalOutput>
#include <VKD_P_WidgetGraphicalOutput_Steps.h>
#include <VKD_QT_Ok.h>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace workbench {

namespace {
/// Creates the page in the language of the first page of the process and then switches it to the
/// current language. A page created in a second language would load the catalogue again and offer
/// each plot twice.
VKD_P_WidgetGraphicalOutput* newPage(QWidget* parent, VKD_H_PluginParameter* parameter,
                                     AnimatorView* view)
{
    static const vkd::Language first = vkd::desktopLanguage();
    const vkd::Language present = vkd::desktopLanguage();
    vkd::setDesktopLanguage(first);
    auto page =
        new VKD_P_WidgetGraphicalOutput(parent, VKD_P_GraphicalOutput_Standard, parameter, view);
    vkd::setDesktopLanguage(present);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(page, &change);
    page->setUsedNumbersAndNames(
        {{vkd::dbo::PlainLoadCase, -1, QString()}}); // offers no load cases yet
    return page;
}
} // namespace

OutputDialog::OutputDialog(VKD_H_ZOBDoc* document, const OutputState& saved, QWidget* parent)
    : VKD_H_TabDialog(parent, "OutputDialog")
    , m_document(document)
    , m_parameter(document)
    , m_view(new AnimatorView(document->handle(), this, "OutputView"))
    , m_page(newPage(this, &m_parameter, m_view))
    , m_userDefinedView(new UserDefinedView(m_page, m_view, this))
    , m_plots(m_page->findChild<QTreeWidget*>())
    , m_offers(new OutputOffers(document->handle(), m_page, m_view))
{
    setWindowFlags(Qt::Widget);
    setAttribute(Qt::WA_Moved); // otherwise, the dialog moves to the centre of its parent
    setHelpTopic(this, "GRAV/OUTPUT");
    setHelpTopic(m_page, "GRAV/SETTINGS");
    setHelpTopic(m_plots, "GRAV/PLOTS");
    m_changes.setSingleShot(true);
    connect(&m_changes, &QTimer::timeout, this, &OutputDialog::choiceChanged);
    setButtons();
    addTabs();
    restore(saved);
    listen();
    setUnchanged();
    new TreeViewMemory(document->path(), m_plots, this);
}

/// Destroys the page before the timer, because the page's widgets emit signals while they are
/// destroyed. Before that, hides the tabs, which saves the view of the tree.
OutputDialog::~OutputDialog()
{
    hide();
    delete m_page;
}

void OutputDialog::setButtons()
{
    layout()->setContentsMargins(0, 0, 0, 0); // the tabs fill the dock
    buttons()->cmdOk()->setToolTip(tr("Stores the choice of plots in the project file (Ctrl+S)"));
    buttons()->cmdCancel()->setToolTip(tr("Restores the choice of plots from the project file"));
    for (QPushButton* button : {buttons()->cmdOk(), buttons()->cmdCancel()}) {
        button->setDefault(false);
        button->setAutoDefault(false);
    }
    setButtonTexts();
    enableButtons(false, false);
}

void OutputDialog::setButtonTexts()
{
    buttons()->cmdOk()->setText(tr("&Apply"));
    buttons()->cmdCancel()->setText(tr("Dis&card"));
}

/// A dialog that is created after a language change still receives the event for this change. The
/// base class then resets the buttons to their standard texts.
bool OutputDialog::event(QEvent* event)
{
    const bool isHandled = VKD_H_TabDialog::event(event);
    if (event->type() == QEvent::LanguageChange)
        setButtonTexts();
    return isHandled;
}

void OutputDialog::enableButtons(bool canApply, bool canDiscard)
{
    buttons()->cmdOk()->setEnabled(canApply);
    buttons()->cmdCancel()->setEnabled(canDiscard);
}

void OutputDialog::enter()
{
    if (tabWidget()->currentWidget()->isAncestorOf(m_plots))
        m_plots->setFocus();
    else
        tabWidget()->setFocus();
}

/// Keeps the tabs visible. OutputEditor stores the state only if no field rejects its text.
void OutputDialog::done(int result)
{
    if (result == Rejected)
        rejected();
    else
        accepted();
}

/// Prevents Escape and Return from discarding or applying the choice, which they would do in a
/// dialog.
void OutputDialog::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
}

void OutputDialog::addTabs()
{
    auto plots = new QWidget(this);
    auto layout = new QVBoxLayout(plots);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_page);
    addTab(plots, tr("Plots"));
    for (const char* name :
         {"undo", "redo", "findPlots", "findNextPlot", "findPreviousPlot", "uncheckPlots"})
        addAction(m_page->findChild<QAction*>(QLatin1String(name)));
    m_offers->addTo(this, m_document->path());
    const auto find = m_page->findChild<QAction*>(QStringLiteral("findPlots"));
    connect(find, &QAction::triggered, this, [this, find] { // shows the tab with the plots
        if (tabWidget()->currentIndex() == 0)
            return;
        tabWidget()->setCurrentIndex(0);
        find->trigger();
    });
}

void OutputDialog::restore(const OutputState& saved)
{
    vkd::dbo::setCamera(ZobHandle::scratch(), vkd::dbo::Camera()); // discards the previous camera
    m_offers->restore(saved);
}

/// Connects the widgets of the page, because the page itself does not emit signals for changes.
void OutputDialog::listen()
{
    const auto start = [this] { m_changes.start(0); };
    for (const auto button : m_page->findChildren<QAbstractButton*>()) {
        connect(button, &QAbstractButton::toggled, this, start);
        connect(button, &QAbstractButton::clicked, this, start);
    }
    for (const auto combo : m_page->findChildren<QComboBox*>())
        connect(combo, &QComboBox::currentTextChanged, this, start);
    for (const auto edit : m_page->findChildren<QLineEdit*>())
        connect(edit, &QLineEdit::textChanged, this, start);
    const QAbstractItemModel* plots = m_plots->model();
    connect(plots, &QAbstractItemModel::dataChanged, this, start);
    connect(plots, &QAbstractItemModel::modelReset, this, start);
    connect(plots, &QAbstractItemModel::rowsInserted, this, start);
    connect(m_offers, &OutputOffers::changed, this, start);
    // Undo restores the plots without signals from the tree's model.
    connect(
        m_page->findChild<QObject*>(QLatin1String(vkd::plib::widgetgraphicaloutput::StepsObject)),
        SIGNAL(stepped()), &m_changes, SLOT(start()));
    connect(m_userDefinedView, &UserDefinedView::moved, this, start);
    new DisabledHint(m_view, tr("Choose “User defined” to turn the model."));
    new DisabledHint(m_page->findChild<QWidget*>(QStringLiteral("PicturesGroup")),
                     tr("A landscape page has one picture."));
}

QString OutputDialog::script(vkd::Language keywords)
{
    vkd_lib_setvalue(VKD_SETTING_HEAD_LANGUAGE, int(keywords));
    m_userDefinedView->store();
    return m_page->getTORVAL(keywords == vkd::Language::English);
}

QVector<PlotCaption> OutputDialog::captions()
{
    return checkedPlots(m_plots);
}

OutputState OutputDialog::state()
{
    m_userDefinedView->store();
    OutputState present;
    present.page = UserDefinedView::withCamera(m_offers->page());
    m_offers->readTo(&present);
    return present;
}

int OutputDialog::absentPlots() const
{
    return m_offers->absentPlots();
}

bool OutputDialog::isChanged()
{
    return state().text() != m_unchanged;
}

void OutputDialog::setUnchanged()
{
    setUnchanged(state().text());
}

bool OutputDialog::hasUnsavedInput()
{
    return !RefusedTexts(m_page).isEmpty() || isChanged();
}

void OutputDialog::removePlots()
{
    hide(); // saves the view of the tree
    m_plots->clear();
}

void OutputDialog::finishChanges()
{
    if (!m_changes.isActive())
        return;
    m_changes.stop();
    Q_EMIT choiceChanged();
}

OutputPresent OutputDialog::present()
{
    return {state(),
            isChanged(),
            m_unchanged,
            tabWidget()->currentIndex(),
            TreeViewState(m_plots),
            RefusedTexts(m_page),
            TypedFilters(this),
            m_offers->steps()};
}

void OutputDialog::setPresent(const OutputPresent& present)
{
    m_offers->setSteps(present.steps);
    m_unchanged = present.isChanged ? present.unchanged : state().text();
    tabWidget()->setCurrentIndex(present.tab);
    present.refused.restore(m_page);
    present.filters.restore(this);
    present.plots.restore(m_plots); // after the tree has been resized
}

} // namespace workbench
