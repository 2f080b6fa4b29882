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

/// The settings of an output page. This class has the scale and the font, which all pages have; a
/// subclass adds the widgets of one kind of page, so that nothing else has to test whether they
/// exist. The widgets are stored in the data of the page and owned by their parents. Panels emit no
/// signals; the page connects the buttons.
class OutputPanel
{
    Q_DECLARE_TR_FUNCTIONS(VKD_P_WidgetGraphicalOutput)

public:
    virtual ~OutputPanel();

    /// Creates the widgets as descendants of `box`, with the settings of a new page.
    virtual void build(QWidget* box) = 0;
    /// Lays out the strip of settings, and the view buttons at the top of `right`. The tree of the
    /// page must exist.
    virtual void layOut(QBoxLayout* right) = 0;

    /// Returns the buttons of the views in the order of OutputView; a page may have none.
    virtual QList<QRadioButton*> viewButtons() const { return {}; }
    /// Returns the buttons of the formats in the order of PageFormat; a page may have none.
    virtual QList<QRadioButton*> formatButtons() const { return {}; }
    /// Returns the widgets of the strip in the order of reading.
    virtual QList<QWidget*> tabStops() const = 0;

    /// Restores the settings of a new page, except the current rows of lists.
    virtual void reset();
    /// Adapts the pictures to the format that the user selected.
    virtual void followFormat() {}

    /// Returns the settings, those that the page does not have with their default values.
    virtual OutputSettings settings() const;
    /// Returns the settings as parts of the saved string.
    virtual QString savedParts() const;
    /// Shows the saved settings. Widgets whose part is missing are unchanged.
    virtual void apply(const SavedPage& saved);

    /// Returns the number of the checked view, -1 if none is checked.
    virtual int checkedView() const { return -1; }
    /// Returns whether the view has to be sent to the animator when the page is first shown.
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
