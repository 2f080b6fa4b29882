#include "VKD_H_BoxedLineEdit.h"

#include "VKD_H_LineEdit.h"
#include "vkd_h_numberText.h"

#include <VKD_QT_Layouts.h>
#include <VKD_QT_Widgets.h>

#include <QKeyEvent>
#include <QValidator>

namespace {
/// Returns the label without its mnemonic and colon.
QString plainName(QString label)
{
    label = label.remove(QLatin1Char('&')).trimmed();
    if (label.endsWith(QLatin1Char(':')))
        label.chop(1);
    return label.trimmed();
}

bool fallsBack(const StructLineEdit& edit)
{
    return (edit.flags & StructBoxedEdit::EmptyIsDefault) && !vkd_h_isNotSet(edit.emptied, edit);
}

StructBoxedEdit completed(const StructBoxedEdit* given)
{
    StructBoxedEdit description = given ? *given : StructBoxedEdit();
    if (fallsBack(description.edit))
        description.edit.flags |= StructLineEdit::EmptyAllowed; // may be empty during typing
    description.edit.flags |= StructLineEdit::TextForPrograms;
    return description;
}

VKD_H_LineEdit* newEdit(QWidget* parent, StructBoxedEdit& description, const char* name)
{
    const QByteArray editName = QByteArray(name) + "_edit";
    return new VKD_H_LineEdit(parent, &description.edit, editName.constData(),
                              plainName(description.label), description.toolTip, true);
}

/// Replaces decimal separators with points in typed, pasted and dropped text. Accepts any text.
class PointWriter : public QValidator
{
public:
    PointWriter(const StructLineEdit& description, QObject* parent)
        : QValidator(parent)
        , m_description(description)
    {
    }

    State validate(QString& text, int&) const override
    {
        text = vkd_h_plainNumberText(text, m_description);
        return Acceptable;
    }

private:
    const StructLineEdit& m_description;
};

bool endsInput(QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason;
    }
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}
} // namespace

VKD_H_BoxedLineEdit::VKD_H_BoxedLineEdit(QWidget* parent, StructBoxedEdit* description,
                                         const char* name)
    : QWidget(parent)
    , m_description(completed(description))
    , m_edit(newEdit(this, m_description, name))
{
    setObjectName(QLatin1String(name));
    setFocusProxy(m_edit);
    for (QWidget* widget : {static_cast<QWidget*>(this), static_cast<QWidget*>(m_edit)}) {
        widget->setWhatsThis(m_description.whatsThis);
        widget->setStatusTip(m_description.statusTip);
    }
    arrange();
    showDefault();
    m_edit->installEventFilter(this);
    m_edit->setValidator(new PointWriter(m_description.edit, this));
    connect(m_edit, &VKD_H_LineEdit::valueChanged, this, &VKD_H_BoxedLineEdit::valueChanged);
}

QString VKD_H_BoxedLineEdit::getText() const
{
    if (!m_set.isNull() && m_edit->text() == m_set)
        return m_set;
    return m_edit->refusal().isEmpty() && !standsForDefault() ? m_edit->text()
                                                              : m_edit->acceptedText();
}

void VKD_H_BoxedLineEdit::setText(const QString& text)
{
    const QSignalBlocker silence(this); // the field treats the text as a selected preset
    const QValidator* points = m_edit->validator();
    m_edit->setValidator(nullptr);
    m_edit->setText(text);
    m_edit->setValidator(points);
    m_set = text;
    fillEmptyField();
}

void VKD_H_BoxedLineEdit::setVal(double value)
{
    m_set.clear();
    m_edit->setVal(value);
}

VKD_H_LineEdit* VKD_H_BoxedLineEdit::edit() const
{
    return m_edit;
}

bool VKD_H_BoxedLineEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_edit && endsInput(event))
        fillEmptyField(); // must precede the field's own handling of the event
    return QWidget::eventFilter(watched, event);
}

void VKD_H_BoxedLineEdit::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showDefault();
}

void VKD_H_BoxedLineEdit::arrange()
{
    QBoxLayout* layout = new VKD_QT_HBoxLayout(this);
    if (m_description.labelPlace == StructBoxedEdit::LabelAbove)
        layout->setDirection(QBoxLayout::TopToBottom);
    layout->setContentsMargins(0, 0, 0, 0);
    if (!m_description.label.isEmpty()) {
        auto label = new VKD_QT_Label(m_description.label, this);
        label->setBuddy(m_edit);
        label->setToolTip(m_description.toolTip);
        layout->addWidget(label);
    }
    layout->addWidget(m_edit, 1);
}

bool VKD_H_BoxedLineEdit::standsForDefault() const
{
    return fallsBack(m_description.edit) && m_edit->refusal().isEmpty() &&
           vkd_h_isNotSet(m_edit->getVal(), m_description.edit);
}

void VKD_H_BoxedLineEdit::fillEmptyField()
{
    if (standsForDefault())
        setVal(m_description.edit.emptied);
}

/// Shows the default value of an empty field as a dimmed placeholder.
void VKD_H_BoxedLineEdit::showDefault()
{
    if (fallsBack(m_description.edit))
        m_edit->setPlaceholderText(
            vkd_h_numberText(m_description.edit.emptied, m_description.edit));
}
