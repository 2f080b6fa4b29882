#pragma once

#include <QObject>
#include <QString>

#include <functional>

class DesignParameter;
class QPushButton;

namespace plib {

/// Explains why Up, Down or Delete has no effect on the selected rows: in the tool tips of these
/// buttons, and in the line beside them when the user tries. The object is a child of the design
/// page.
class RowButtonHints : public QObject
{
    Q_OBJECT

public:
    explicit RowButtonHints(DesignParameter* page);

private:
    void explain(const char* name, const std::function<QString()>& refusal);

    DesignParameter* m_page;
    QString m_refusal; ///< when a button was pressed; a click may change the rows
};

} // namespace plib
