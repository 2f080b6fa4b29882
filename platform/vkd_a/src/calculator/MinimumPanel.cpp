#include "calculator/MinimumPanel.h"

#include "calculator/areaFields.h"

#include <VKD_H_LineEdit.h>
#include <vkd_h_units.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Widgets.h>

#include <algorithm>
#include <cmath>

namespace {
constexpr int UsualConcrete = 30, UsualSteel = 500; // N/mm²
constexpr int Steels[] = {400, 500, 550, 600};      // N/mm², the range of EN 1992-1-1, 3.2.2
constexpr double ShareOfSecondary = 0.2;

struct ConcreteClass
{
    const char* name;
    int fck; // N/mm²
};

constexpr ConcreteClass Concretes[] = {
    {"C12/15", 12}, {"C16/20", 16}, {"C20/25", 20}, {"C25/30", 25},  {"C30/37", 30},
    {"C35/45", 35}, {"C40/50", 40}, {"C45/55", 45}, {"C50/60", 50},  {"C55/67", 55},
    {"C60/75", 60}, {"C70/85", 70}, {"C80/95", 80}, {"C90/105", 90},
};

QString number(double value, int decimals)
{
    return vkd_h_getNumberString(value, decimals);
}

/// Rounds up, because the result must not be below the minimum.
double roundedUp(double area)
{
    constexpr double Noise = 1e-9;
    return std::ceil(area * 100.0 - Noise) / 100.0;
}
} // namespace

MinimumPanel::MinimumPanel(QWidget* parent)
    : AreaPanel(parent)
{
    auto layout = new VKD_QT_VBoxLayout(this);
    layout->addWidget(makeInput());
    layout->addWidget(makeFormulas(), 1);
    connectAll();
    showFormulas();
}

VKD_QT_GroupBox* MinimumPanel::makeInput()
{
    auto box = new VKD_QT_GroupBox(tr("Slab"), this, "slab");
    m_depth = newAreaField(box, DistanceCode, QString(), "depth", tr("Effective depth"));
    m_depth->setPlausibleRange({DistanceCode, 0.05, 2.0}); // m
    m_direction = new VKD_QT4_ComboBox(box, "direction");
    m_direction->addEntry(tr("principal"), Principal);
    m_direction->addEntry(tr("secondary, one-way slab"), Secondary);
    m_concrete = new VKD_QT4_ComboBox(box, "concrete");
    for (const ConcreteClass& concrete : Concretes)
        m_concrete->addEntry(QLatin1String(concrete.name), concrete.fck);
    m_concrete->setCurrentId(UsualConcrete);
    m_principal =
        newAreaField(box, AreaCode, QString(), "principal", tr("Principal reinforcement"));
    m_steel = new VKD_QT4_ComboBox(box, "steel");
    for (int fyk : Steels)
        m_steel->addEntry(QStringLiteral("%1 N/mm²").arg(fyk), fyk);
    m_steel->setCurrentId(UsualSteel);
    auto grid = new VKD_QT_GridLayout(box);
    const auto add = [&](int row, int column, const QString& text, QWidget* field) {
        auto label = new VKD_QT_Label(text, box);
        label->setBuddy(field);
        grid->addWidget(label, row, column);
        grid->addWidget(field, row, column + 1);
    };
    add(0, 0, tr("&Effective depth d:"), m_depth);
    add(0, 2, tr("D&irection:"), m_direction);
    add(1, 0, tr("&Concrete:"), m_concrete);
    add(1, 2, tr("&Principal reinforcement:"), m_principal);
    add(2, 0, tr("&Yield strength of the steel:"), m_steel);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return box;
}

VKD_QT_GroupBox* MinimumPanel::makeFormulas()
{
    auto box = new VKD_QT_GroupBox(tr("Calculation"), this, "calculation");
    m_formulas = new VKD_QT_Label(box, "formulas");
    m_formulas->setTextFormat(Qt::RichText);
    m_formulas->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_formulas->setWordWrap(true);
    m_formulas->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto grid = new VKD_QT_GridLayout(box);
    grid->addWidget(m_formulas);
    return box;
}

void MinimumPanel::connectAll()
{
    for (VKD_QT4_ComboBox* list : {m_concrete, m_steel, m_direction})
        connect(list, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &MinimumPanel::showFormulas);
    for (VKD_H_LineEdit* field : {m_depth, m_principal})
        connect(field, &QLineEdit::textChanged, this, &MinimumPanel::showFormulas);
}

bool MinimumPanel::isSecondary() const
{
    return m_direction->getCurrentId() == Secondary;
}

VkdMinimumReinforcement MinimumPanel::minimum() const
{
    return vkd_a_minimumReinforcement(m_depth->getVal(),
                                      vkd_a_meanTensileStrength(m_concrete->getCurrentId()),
                                      m_steel->getCurrentId());
}

/// Returns the principal reinforcement, which is never below its own minimum.
double MinimumPanel::principalArea() const
{
    return std::max(minimum().area(), m_principal->getVal());
}

AreaResult MinimumPanel::result() const
{
    AreaResult result;
    const bool isReadable =
        m_depth->refusal().isEmpty() && (!isSecondary() || m_principal->refusal().isEmpty());
    if (!isReadable)
        result.fault = tr("An entry cannot be read.");
    else if (m_depth->getVal() <= 0)
        result.fault = tr("The effective depth is required.");
    result.area = roundedUp(isSecondary() ? ShareOfSecondary * principalArea() : minimum().area());
    return result;
}

QString MinimumPanel::formulas() const
{
    const VkdMinimumReinforcement least = minimum();
    const double fctm = vkd_a_meanTensileStrength(m_concrete->getCurrentId());
    const QString depth = number(m_depth->getVal() * 100.0, 1); // cm
    QString text = strengthFormula();
    text += QStringLiteral("<p>a<sub>s,min</sub> = %1 · f<sub>ctm</sub> / f<sub>yk</sub> · d = "
                           "%1 · %2 / %3 · %4 cm · 100 cm/m = <b>%5</b><br>%6</p>")
                .arg(number(VkdTensionFactor, 2), number(fctm, 2),
                     QString::number(m_steel->getCurrentId()), depth, areaText(least.ofTension),
                     tr("EN 1992-1-1, 9.3.1.1 (1) and 9.2.1.1 (1), Equation (9.1N)"));
    text += QStringLiteral("<p>a<sub>s,min</sub> ≥ %1 · d = %1 · %2 cm · 100 cm/m = "
                           "<b>%3</b><br>%4</p>")
                .arg(number(VkdSectionFactor, 4), depth, areaText(least.ofSection),
                     tr("EN 1992-1-1, 9.2.1.1 (1), lower limit"));
    return isSecondary() ? text + secondaryFormula() : text;
}

QString MinimumPanel::strengthFormula() const
{
    const int fck = m_concrete->getCurrentId();
    const QString formula =
        fck <= VkdGreatestNormalStrength
            ? number(0.30, 2) + QStringLiteral(" · f<sub>ck</sub><sup>2/3</sup>")
            : number(2.12, 2) + QStringLiteral(" · ln (1 + (f<sub>ck</sub> + 8) / 10)");
    return QStringLiteral("<p>f<sub>ctm</sub> = %1 = <b>%2 N/mm²</b> (f<sub>ck</sub> = %3 N/mm²)"
                          "<br>%4</p>")
        .arg(formula, number(vkd_a_meanTensileStrength(fck), 2), QString::number(fck),
             tr("EN 1992-1-1, Table 3.1"));
}

QString MinimumPanel::secondaryFormula() const
{
    return QStringLiteral("<p>%1 · a<sub>s</sub> = %1 · %2 = <b>%3</b><br>%4</p>")
        .arg(number(ShareOfSecondary, 1), areaText(principalArea()),
             areaText(ShareOfSecondary * principalArea()),
             tr("EN 1992-1-1, 9.3.1.1 (2): a fifth of the principal reinforcement"));
}

void MinimumPanel::showFormulas()
{
    m_principal->setEnabled(isSecondary());
    m_formulas->setText(result().fault.isEmpty() ? formulas() : QString());
    Q_EMIT changed();
}
