#include "DesignDialog.h"

#include "dialogPages.h"

#include <VKD_H_ProjectDialogPage.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter>
#include <VKD_QT_Ok.h>

#include <QPushButton>
#include <QVBoxLayout>

namespace workbench {

namespace {
constexpr int OkAndCancel = 3;
} // namespace

DesignDialog::DesignDialog(VKD_H_ZOBDoc* document, QWidget* parent)
    : VKD_H_Dialog(parent, "DesignDialog")
    , m_document(document)
    , m_page(new VKD_P_DesignParameter(document, document, this, false, false))
{
    setWindowTitle(tr("Design parameters"));
    auto row = new VKD_QT_Ok(this, OkAndCancel, "okayandcancelbutton");
    auto layout = new QVBoxLayout(this);
    layout->addWidget(m_page, 1);
    layout->addWidget(row);
    connect(row->cmdOk(), &QPushButton::clicked, this, &DesignDialog::accept);
    connect(row->cmdCancel(), &QPushButton::clicked, this, &DesignDialog::reject);
    m_page->init();
    VKD_H_ProjectDialogPage entries(document->index(), DesignDialogPage);
    m_page->getEntrys(entries);
    resize(fontMetrics().averageCharWidth() * 150, fontMetrics().height() * 28);
}

bool DesignDialog::store()
{
    VKD_H_ProjectDialogPage entries(m_document->index(), DesignDialogPage);
    m_page->setEntrys(entries);
    return entries.save();
}

void DesignDialog::accept()
{
    if (m_page->checkVals())
        VKD_H_Dialog::accept();
}

} // namespace workbench
