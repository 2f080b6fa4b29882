#include "dialogs/dlgDistanceDirection.h"

#include "dialogs/dialogFrame.h"
#include "plugin/languagePictures.h"
#include "record/designFields.h"
#include "record/designRecord.h"

#include <StructLineEdit.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <VKD_QT_InfoText.h>
#include <VKD_QT_Widgets.h>

#include <QPixmap>

#include <algorithm>

namespace {
using R = tagZOB_QUAD_RIM;

constexpr int DirectionCode = 5;
constexpr int DistanceCode = 1024;
constexpr int CoordinateCode = 1001;

constexpr int FigureColumn = 10;
constexpr int FigureRows = 5;
constexpr int FigureColumns = 14;

StructLineEdit description(int code)
{
    if (code != CoordinateCode)
        return VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(code);
    return {2,         CoordinateCode,      0.0,       99999.0, -99999.0, -99998.0, 2048,
            QString(), QStringLiteral(","), QString(), {}};
}

void addFigure(VKD_QT_GridLayout* grid, const QPixmap& picture)
{
    auto figure = new VKD_QT_Label(grid->parentWidget());
    figure->setPixmap(picture);
    grid->addWidget(figure, 0, FigureColumn, FigureRows, FigureColumns, Qt::AlignHCenter);
    grid->setColumnStretch(FigureColumn, 1); // the figure uses the remaining width
}
} // namespace

using Direction = dlgDistanceDirection;

/// A line edit, the field of the record that it shows, its object name and its dimension code.
struct dlgDistanceDirection::Field
{
    Edit edit;
    plib::RealField field;
    const char* name;
    int code;
};

const dlgDistanceDirection::Field dlgDistanceDirection::Fields[] = {
    {&Direction::hio, &R::hio, "hio", DistanceCode},
    {&Direction::hiu, &R::hiu, "hiu", DistanceCode},
    {&Direction::hioq, &R::hioq, "hioq", DistanceCode},
    {&Direction::hiuq, &R::hiuq, "hiuq", DistanceCode},
    {&Direction::hioi, &R::hioi, "hioi", DistanceCode},
    {&Direction::hiui, &R::hiui, "hiui", DistanceCode},
    {&Direction::rio, &R::rio, "rio", DirectionCode},
    {&Direction::riu, &R::riu, "riu", DirectionCode},
    {&Direction::rioq, &R::rioq, "rioq", DirectionCode},
    {&Direction::riuq, &R::riuq, "riuq", DirectionCode},
    {&Direction::rioi, &R::rioi, "rioi", DirectionCode},
    {&Direction::riui, &R::riui, "riui", DirectionCode},
    {&Direction::xref, &R::xref, "xref", CoordinateCode},
    {&Direction::yref, &R::yref, "yref", CoordinateCode},
    {&Direction::zref, &R::zref, "zref", CoordinateCode},
};

dlgDistanceDirection::dlgDistanceDirection(tagZOB_QUAD_RIM* record, QWidget* parent)
    : VKD_QT_Dialog(parent)
{
    plib::dressDialog(this, tr("Direction and Distance"), "DIRECTIONS");
    auto layout = new VKD_QT_VBoxLayout;
    plib::addOkRow(this, layout);
    setLayout(layout);
    build(record->type);
    plib::showValues(fields(), *record);
}

void dlgDistanceDirection::build(int type)
{
    if (type < plib::TwoLayersOrthogonal || type > plib::Circular)
        return;
    VKD_QT_GroupBox* first = type == plib::Circular ? circular() : layeredDirection(type);
    VKD_QT_GroupBox* second = type == plib::Circular ? midpoint() : layeredDistance(type);
    plib::insertBoxes(this, {first, second}, plib::TabOrder::ByRows);
}

/// Returns the type for which the dialog currently has fields.
int dlgDistanceDirection::builtType() const
{
    if (xref)
        return plib::Circular;
    if (rioq)
        return rioi ? plib::ThreeLayers : plib::TwoLayers;
    return rio ? plib::TwoLayersOrthogonal : plib::NoDesign;
}

void dlgDistanceDirection::showRecord(const tagZOB_QUAD_RIM& record)
{
    if (record.type != builtType()) {
        plib::removeBoxes(this);
        for (const Field& field : Fields)
            this->*field.edit = nullptr;
        build(record.type);
    }
    plib::showValues(fields(), record);
}

plib::DialogFields dlgDistanceDirection::fields() const
{
    plib::DialogFields existing;
    for (const Field& field : Fields)
        if (this->*field.edit)
            existing.push_back({field.field, this->*field.edit, nullptr});
    return existing;
}

/// Sets fields without a line edit to "not set".
void dlgDistanceDirection::writeToRecord(tagZOB_QUAD_RIM* record) const
{
    for (const Field& field : Fields)
        record->*field.field = plib::NotSet;
    plib::writeValues(fields(), record);
}

VKD_QT_GroupBox* dlgDistanceDirection::layeredDirection(int type)
{
    VKD_QT_GroupBox* box = nullptr;
    VKD_QT_GridLayout* grid = newGrid(tr("Direction"), "direction", &box);
    const QLatin1String range(" (0 ... 180)");
    addHeader(grid);
    addRow(grid, 1, tr("Principal Reinforcement") + range, &Direction::rio, &Direction::riu);
    if (type >= plib::TwoLayers)
        addRow(grid, 2, tr("Cross Reinforcement") + range, &Direction::rioq, &Direction::riuq);
    if (type == plib::ThreeLayers)
        addRow(grid, 3, tr("Third Layer") + range, &Direction::rioi, &Direction::riui);
    addNote(grid);
    addFigure(grid, GET_PIXMAP_WITH_LANG(QStringLiteral(":/neq_merpara_rich.png")));
    return box;
}

VKD_QT_GroupBox* dlgDistanceDirection::layeredDistance(int type)
{
    VKD_QT_GroupBox* box = nullptr;
    VKD_QT_GridLayout* grid = newGrid(tr("Distance"), "distance", &box);
    grid->setColumnMinimumWidth(2, grid->horizontalSpacing()); // same gap as in the box above
    addHeader(grid);
    addRow(grid, 1, tr("Principal Reinforcement") + QLatin1String(" (H)"), &Direction::hio,
           &Direction::hiu);
    addRow(grid, 2, tr("Cross Reinforcement") + QLatin1String(" (DH)"), &Direction::hioq,
           &Direction::hiuq);
    if (type == plib::ThreeLayers)
        addRow(grid, 3, tr("Third layer reinforcement (DDH)"), &Direction::hioi, &Direction::hiui);
    addFigure(grid, QPixmap(QStringLiteral(":/betondeckung_1.png")));
    return box;
}

VKD_QT_GroupBox* dlgDistanceDirection::circular()
{
    VKD_QT_GroupBox* box = nullptr;
    VKD_QT_GridLayout* grid = newGrid(tr("Direction / Distance"), "direction_distance", &box);
    addHeader(grid);
    addRow(grid, 1, tr("Direction (-180 ... 180)"), &Direction::rio, &Direction::riu);
    for (VKD_H_LineEdit* edit : {rio, riu})
        edit->setPlausibleRange(vkd_h_plausibleRange(DirectionCode, VkdDirections::Signed));
    addRow(grid, 2, tr("Distance of Principal Reinforcement (H)"), &Direction::hio,
           &Direction::hiu);
    addRow(grid, 3, tr("Distance of Cross Reinforcement (DH)"), &Direction::hioq, &Direction::hiuq);
    addNote(grid);
    addFigure(grid, GET_PIXMAP_WITH_LANG(QStringLiteral(":/neq_merpara_rich.png")));
    return box;
}

VKD_QT_GroupBox* dlgDistanceDirection::midpoint()
{
    VKD_QT_GroupBox* box = nullptr;
    VKD_QT_GridLayout* grid = newGrid(tr("Midpoint"), "Midpoint", &box);
    const struct
    {
        QString text;
        Edit edit;
    } rows[] = {
        {tr("X coordinate"), &Direction::xref},
        {tr("Y coordinate"), &Direction::yref},
        {tr("Z coordinate"), &Direction::zref},
    };
    int number = 0;
    for (const auto& row : rows) {
        VKD_H_LineEdit* edit = newEdit(row.edit);
        edit->setAccessibleDescription(row.text);
        plib::addLabel(grid, number, 0, row.text)->setBuddy(edit);
        grid->addWidget(edit, number++, 1, 1, 2);
    }
    grid->setColumnStretch(FigureColumn, 1);
    return box;
}

VKD_QT_GridLayout* dlgDistanceDirection::newGrid(const QString& title, const char* name,
                                                 VKD_QT_GroupBox** box)
{
    *box = new VKD_QT_GroupBox(title, this, name);
    return new VKD_QT_GridLayout(*box);
}

void dlgDistanceDirection::addHeader(VKD_QT_GridLayout* grid)
{
    plib::addLabel(grid, 0, 1, tr("Upper") + QLatin1String(" (A)"));
    plib::addLabel(grid, 0, 3, tr("Lower") + QLatin1String(" (B)"));
}

void dlgDistanceDirection::addRow(VKD_QT_GridLayout* grid, int row, const QString& text, Edit upper,
                                  Edit lower)
{
    VKD_QT_Label* label = plib::addLabel(grid, row, 0, text);
    plib::addField(grid, row, 1, newEdit(upper), text + QLatin1String(", ") + tr("Upper"));
    plib::addField(grid, row, 3, newEdit(lower), text + QLatin1String(", ") + tr("Lower"));
    label->setBuddy(this->*upper);
}

void dlgDistanceDirection::addNote(VKD_QT_GridLayout* grid)
{
    auto note = new VKD_QT_InfoText(true, tr("The local x-axis of the elements is the default "
                                             "direction of the principal reinforcement."));
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred); // fields determine the width
    policy.setHeightForWidth(true);
    note->setSizePolicy(policy);
    grid->addWidget(note, 4, 0, 1, 4);
}

QString dlgDistanceDirection::textOf(int code)
{
    switch (code) {
    case DirectionCode: return tr("Rotation angle of reinforcement towards local x-axis");
    case DistanceCode: return tr("Axial Distance");
    default: return tr("Reference point for circular reinforcement");
    }
}

VKD_H_LineEdit* dlgDistanceDirection::newEdit(Edit edit)
{
    const Field& field = *std::find_if(std::begin(Fields), std::end(Fields),
                                       [edit](const Field& entry) { return entry.edit == edit; });
    StructLineEdit format = description(field.code);
    return this->*edit =
               new VKD_H_LineEdit(this, &format, field.name, textOf(field.code), QString(), true);
}
