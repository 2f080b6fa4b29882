#pragma once

#include <QString>

class FieldMessage;
class QPainter;
class QRect;
class QWidget;

/// The reason why an input field is marked.
enum class FieldMarkKind {
    None,
    Doubted, ///< the value is accepted, but implausible
    Refused  ///< the text is invalid, or the dialog rejects the value
};

/// The mark of an input field. It consists of a coloured frame, a symbol at the right end for users
/// who cannot see the colour, and an explanation. The explanation is appended to the accessible
/// description and shown in a message next to the field. The mark uses the field's palette and
/// font.
class FieldMark
{
public:
    explicit FieldMark(QWidget* field);

    /// Sets the mark; an empty string removes it. Returns false if the text has not changed.
    bool set(FieldMarkKind kind, const QString& text);
    const QString& text() const { return m_text; }

    bool isSet() const { return m_kind != FieldMarkKind::None; }
    /// Returns the width of the symbol in pixels, even while there is no mark.
    int width() const;
    /// Paints the frame around the field, and the symbol inside `place`.
    void paint(QPainter* painter, const QRect& place) const;

    void showMessage();
    void hideMessage();

private:
    QWidget* m_field;
    FieldMarkKind m_kind = FieldMarkKind::None;
    QString m_text;
    QString m_about;                   ///< accessible description without the mark's text
    FieldMessage* m_message = nullptr; ///< created on first use; child of the field
};
