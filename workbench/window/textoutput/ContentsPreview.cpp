#include "window/textoutput/ContentsPreview.h"

#include "window/textoutput/ContentsList.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace workbench {

namespace {
constexpr int WidthInLetters = 50;
}

ContentsPreview::ContentsPreview(QWidget* parent)
    : QGroupBox(tr("Table of contents"), parent)
    , m_list(new ContentsList(this))
    , m_copy(newButton("CopyContents", tr("Co&py"), tr("Copies the table of contents as text")))
    , m_export(newButton("ExportContents", tr("&Export..."),
                         tr("Saves the table of contents as a text file")))
{
    m_list->setObjectName(QStringLiteral("TextContents"));
    m_list->setAccessibleName(tr("Table of contents"));
    auto column = new QVBoxLayout(this);
    auto hint = new QLabel(
        tr("Each list, and below it the load cases and combinations for which it is printed."),
        this);
    hint->setWordWrap(true);
    column->addWidget(hint);
    column->addWidget(m_list, 1);
    auto row = new QHBoxLayout;
    row->addWidget(m_copy);
    row->addWidget(m_export);
    row->addStretch();
    column->addLayout(row);
    connect(m_copy, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(m_contents); });
    connect(m_export, &QPushButton::clicked, this, [this] { Q_EMIT exportRequested(m_contents); });
    setContents(QString());
}

QPushButton* ContentsPreview::newButton(const char* name, const QString& text,
                                        const QString& toolTip)
{
    auto button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    return button;
}

void ContentsPreview::setContents(const QString& text)
{
    if (m_contents != text) {
        m_contents = text;
        m_list->setText(text);
    }
    for (QPushButton* button : {m_copy, m_export})
        button->setEnabled(!text.isEmpty());
}

QSize ContentsPreview::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * WidthInLetters,
            QGroupBox::minimumSizeHint().height()};
}

} // namespace workbench
