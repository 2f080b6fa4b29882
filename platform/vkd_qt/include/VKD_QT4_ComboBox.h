#pragma once

#include "vkd_qt_export.h"

#include <QComboBox>

/// A combo box whose entries may bear an id. It leaves the wheel to the page around it, so that
/// scrolling changes no value; its open list scrolls. In a narrow place its text is cut with dots
/// and shown whole in a tool tip, and its list is as wide as its entries need.
class VKD_QT_EXPORT VKD_QT4_ComboBox : public QComboBox
{
    Q_OBJECT

public:
    static constexpr int NoId = -99999;

    explicit VKD_QT4_ComboBox(QWidget* parent = nullptr, const char* name = nullptr);

    using QComboBox::addItem;
    /// Adds an entry with a picture, for which the combo box makes room in all entries.
    void addItem(const QPixmap& picture, const QString& text, int id);
    void addEntry(const QString& text, int id);
    /// The id of the current entry; NoId if it was added without one, or if there is none.
    int getCurrentId() const;
    /// Makes the entry with this id current. False, and no change, if there is none.
    bool setCurrentId(int id);

    /// The current entry as a part (vkd_qt_xmlpart.h) whose tag is the object name: its id, or its
    /// text if it was added without one. Empty without a current entry or without an object name.
    virtual QString writeXMLstring() const;
    /// Makes the entry current that the combo box's part in a string of parts names. An id goes
    /// ahead of a text that reads the same. Without such a part or such an entry nothing changes.
    virtual void readXMLstring(const QString& wholeString);

    void showPopup() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QString cutText() const;
};
