#include "sheet/SheetPreview.h"

#include "sheet/actionButton.h"
#include "sheet/ModelImages.h"
#include "sheet/PageNumber.h"
#include "sheet/SheetPainter.h"
#include "sheet/SheetView.h"

#include <VKD_QT4_ComboBox.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>

namespace workbench {

SheetPreview::SheetPreview(QAction* exportSheets, QWidget* parent)
    : QWidget(parent)
    , m_previous(new QToolButton(this))
    , m_pageLabel(new QLabel(this))
    , m_page(new PageNumber(this))
    , m_count(new QLabel(this))
    , m_next(new QToolButton(this))
    , m_zoom(new VKD_QT4_ComboBox(this, "SheetZoom"))
    , m_export(actionButton(exportSheets, this))
    , m_view(new SheetView(this))
{
    m_previous->setObjectName(QStringLiteral("PreviousSheet"));
    m_next->setObjectName(QStringLiteral("NextSheet"));
    m_export->setObjectName(QStringLiteral("ExportSheets"));
    m_previous->setArrowType(Qt::LeftArrow);
    m_next->setArrowType(Qt::RightArrow);
    m_pageLabel->setBuddy(m_page);
    for (QToolButton* button : {m_previous, m_next}) {
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
    }
    m_zoom->addItems({QString(), QString(), QString()});
    layOut();
    connect(m_previous, &QToolButton::clicked, this,
            [this] { m_view->setPage(m_view->page() - 1); });
    connect(m_next, &QToolButton::clicked, this, [this] { m_view->setPage(m_view->page() + 1); });
    connect(m_page, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int number) { m_view->setPage(number - 1); });
    connect(m_zoom, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &SheetPreview::zoom);
    connect(m_view, &SheetView::pageChanged, this, &SheetPreview::showPage);
    setFocusProxy(m_view);
    setProject(ZobHandle(), QString());
    setTexts();
}

SheetPreview::~SheetPreview() = default;

void SheetPreview::setProject(ZobHandle project, const QString& name)
{
    m_view->setPlan(SheetPlan(), nullptr);
    m_picture = -1;
    m_models = std::make_unique<ModelImages>(project);
    m_painter = std::make_unique<SheetPainter>(m_models.get(), name);
    showPage();
}

void SheetPreview::setPlan(const SheetPlan& plan)
{
    m_view->setPlan(plan, m_painter.get());
    turnToPicture();
    showPage();
}

void SheetPreview::showPicture(int picture)
{
    m_picture = picture;
    if (isVisible())
        turnToPicture();
}

void SheetPreview::turnToPicture()
{
    const SheetPlan& plan = m_view->plan();
    if (m_picture >= 0 && m_picture < plan.pictures.size())
        m_view->setPage(m_picture / plan.picturesPerPage());
    m_picture = -1;
}

void SheetPreview::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
}

void SheetPreview::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_PageUp: return m_view->pageUp();
    case Qt::Key_PageDown: return m_view->pageDown();
    default: QWidget::keyPressEvent(event);
    }
}

void SheetPreview::layOut()
{
    auto head = new QHBoxLayout;
    head->setSpacing(4); // the pane must fit beside the output page in a 1280-pixel-wide window
    head->addWidget(m_previous);
    head->addWidget(m_pageLabel);
    head->addWidget(m_page);
    head->addWidget(m_count);
    head->addWidget(m_next);
    head->addWidget(m_zoom);
    head->addStretch();
    head->addWidget(m_export);
    auto layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(head);
    layout->addWidget(m_view, 1);
}

void SheetPreview::setTexts()
{
    const QSignalBlocker blocker(m_zoom);
    m_previous->setAccessibleName(tr("Previous page"));
    m_previous->setToolTip(tr("Previous page"));
    m_next->setAccessibleName(tr("Next page"));
    m_next->setToolTip(tr("Next page"));
    m_pageLabel->setText(tr("Pa&ge"));
    m_page->setAccessibleName(tr("Page"));
    m_zoom->setAccessibleName(tr("Zoom"));
    m_zoom->setItemText(SheetView::WholePage, tr("Whole page"));
    m_zoom->setItemText(SheetView::PageWidth, tr("Page width"));
    m_zoom->setItemText(SheetView::ActualSize, tr("Actual size"));
    showPage();
}

void SheetPreview::showPage()
{
    const int pages = m_view->plan().pageCount();
    const int page = m_view->page();
    const QSignalBlocker blocker(m_page);
    m_page->setMaximum(qMax(1, pages));
    m_page->setValue(page + 1);
    m_count->setText(tr("of %1").arg(pages));
    m_page->setEnabled(pages > 1);
    m_previous->setEnabled(page > 0);
    m_next->setEnabled(page + 1 < pages);
    m_zoom->setEnabled(pages > 0);
}

void SheetPreview::zoom(int entry)
{
    m_view->setZoom(SheetView::Zoom(entry));
}

} // namespace workbench
