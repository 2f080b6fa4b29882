#pragma once

#include "output/OutputSettings.h"

#include <StructRadioButtonGrup.h>

#include <QCoreApplication>
#include <QList>

#include <memory>
#include <vector>

class QBoxLayout;
class QGridLayout;
class QRadioButton;
class QWidget;
class VKD_QT_RadioButtonGroup;
struct WidgetGraphicalOutputData;

namespace plib {

class SavedPage;

/// The settings of an output page. This class contains the scale and the font, which all pages
/// have. Subclasses add the widgets of one kind of page, so that no other code has to check whether
/// these widgets exist. Pointers to the widgets are stored in the data of the page; the widgets are
/// owned by their parents. Panels do not emit signals; the page connects the buttons.
class OutputPanel
{
    Q_DECLARE_TR_FUNCTIONS(VKD_P_WidgetGraphicalOutput)

public:
    virtual ~OutputPanel();

    /// Creates the widgets as descendants of `box`, with the settings of a new page.
    virtual void build(QWidget* box) = 0;
    /// Creates the layout of the settings strip, and places the view buttons at the top of `right`.
    /// The tree of the page must already exist.
    virtual void layOut(QBoxLayout* right) = 0;

    /// Returns the view buttons in the order of OutputView. A page may have none.
    virtual QList<QRadioButton*> viewButtons() const { return {}; }
    /// Returns the format buttons in the order of PageFormat. A page may have none.
    virtual QList<QRadioButton*> formatButtons() const { return {}; }
    /// Returns the widgets of the settings strip in reading order.
    virtual QList<QWidget*> tabStops() const = 0;

    /// Restores the settings of a new page, except for the current rows of lists.
    virtual void reset();
    /// Sets the number of pictures to the default for the format that the user has selected.
    virtual void followFormat() {}

    /// Returns the settings. Settings for which the page has no widgets have their default values.
    virtual OutputSettings settings() const;
    /// Returns the settings as tagged strings, which become part of the saved string.
    virtual QString savedParts() const;
    /// Shows the saved settings. Widgets whose tags are missing do not change.
    virtual void apply(const SavedPage& saved);

    /// Returns the index of the checked view, or -1 if none is checked.
    virtual int checkedView() const { return -1; }
    /// Returns whether the view must be sent to the animator when the page is shown for the first
    /// time.
    virtual bool showsFixedView() const { return false; }

protected:
    explicit OutputPanel(WidgetGraphicalOutputData& data);

    void buildStrip(QWidget* box);
    void buildFont();
    void buildScaleList();
    QGridLayout* layOutStrip();
    QList<QWidget*> scaleStops() const;

    static std::vector<StructRadioButtonGrup> entries(const QStringList& texts);
    static QList<QRadioButton*> buttons(const VKD_QT_RadioButtonGroup* group);

    WidgetGraphicalOutputData& m_data;

private:
    static std::vector<StructRadioButtonGrup> scaleEntries();
};

/// Returns the panel for a kind of page.
std::unique_ptr<OutputPanel> makeOutputPanel(WidgetGraphicalOutputData& data);

} // namespace plib
