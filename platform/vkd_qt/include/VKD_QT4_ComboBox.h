#pragma once

#include "vkd_qt_export.h"

#include <QComboBox>

/// A combo box whose entries can have ids. It ignores the mouse wheel, so that scrolling the page
/// does not change its value. The open list can be scrolled with the wheel. If the combo box is too
/// narrow, its text is elided and shown in a tool tip, and its list is as wide as the entries.
class VKD_QT_EXPORT VKD_QT4_ComboBox : public QComboBox
{
    Q_OBJECT

public:
    static constexpr int NoId = -99999;

    explicit VKD_QT4_ComboBox(QWidget* parent = nullptr, const char* name = nullptr);

    using QComboBox::addItem;
    /// Adds an entry with an icon and increases the icon size if necessary.
    void addItem(const QPixmap& picture, const QString& text, int id);
    void addEntry(const QString& text, int id);
    /// Returns the id of the current entry, or NoId if it has no id or if there is no current
    /// entry.
    int getCurrentId() const;
    /// Makes the entry with this id current. Returns false without any change if there is no such
    /// entry.
    bool setCurrentId(int id);

    /// Returns the id of the current entry, or its text if it has no id, as a tagged string
    /// (vkd_qt_xmlpart.h) whose tag is the object name. Returns an empty string if there is no
    /// current entry or no object name.
    virtual QString writeXMLstring() const;
    /// Reads the tagged string with the object name as its tag and selects the entry with the
    /// stored id or text. An id takes precedence over an identical text. Has no effect if the tag
    /// or the entry does not exist.
    virtual void readXMLstring(const QString& wholeString);

    void showPopup() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QString cutText() const;
};
