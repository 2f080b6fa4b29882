#include "record/designRecord.h"

#include "record/designFields.h"

#include <VKD_A_BarDiameterData.h>

#include <QtEndian>

#include <cstring>

namespace plib {

namespace {
constexpr float AlsoNotSet = 99999.0F; // written by some programs
constexpr float HalfPi = 1.5707964F;
constexpr int UpperBarClass = 6;
constexpr int LowerBarClass = 5;

template <typename Fields>
void setAll(tagZOB_QUAD_RIM& record, const Fields& fields, float value)
{
    for (RealField field : fields)
        record.*field = value;
}

void clearDistances(tagZOB_QUAD_RIM& record)
{
    setAll(record, fields::Distances, NotSet);
}

/// Converts the distances of the layers `a`, `b` and `c` of a side to the edited form. `c` is
/// converted first, because the result depends on the stored value of `b`.
void tripleToEdited(const float& a, float& b, float& c)
{
    c = b >= 0 && c >= b ? c - b : NotSet;
    b = a >= 0 && b >= a ? b - a : NotSet;
}

/// Converts the distances back to the stored form. If a value is not set, the distances of all
/// subsequent layers are reset to "not set".
void tripleToStored(const float& a, float& b, float& c)
{
    if (a < 0 || b < 0) {
        b = NotSet;
        c = NotSet;
        return;
    }
    b = a + b;
    c = b >= 0 && c >= 0 ? b + c : NotSet;
}

// clearNegative() is for fields in which zero is a valid value, and clearZeroOrNegative() is for
// fields in which zero means "not set".
void clearNegative(float& value)
{
    if (value < 0 || value == AlsoNotSet)
        value = NotSet;
}

void clearZeroOrNegative(float& value)
{
    if (value <= 0 || value == AlsoNotSet)
        value = NotSet;
}

template <typename Fields>
bool equal(const tagZOB_QUAD_RIM& a, const tagZOB_QUAD_RIM& b, const Fields& fields)
{
    for (RealField field : fields)
        if (!(a.*field == b.*field))
            return false;
    return true;
}
} // namespace

tagZOB_QUAD_RIM getDefaultMerPara(bool forRemainingGroups)
{
    tagZOB_QUAD_RIM r{};
    r.group = forRemainingGroups ? -1 : 0;
    r.type = forRemainingGroups ? 1 : 0;
    r.mode = 1;
    r.mark = 11;
    r.rioq = r.riuq = HalfPi;
    r.rioi = r.riui = NotSet;
    r.hio = r.hiu = 0.035F;
    r.hioq = r.hioi = r.hiuq = r.hiui = 0.045F;
    r.dio = r.dioq = r.dioi = vkd_a_get_min_bar_type(UpperBarClass);
    r.diu = r.diuq = r.diui = vkd_a_get_min_bar_type(LowerBarClass);
    setAll(r, fields::Minimum, NotSet);
    setAll(r, fields::Maximum, NotSet);
    setAll(r, fields::CrackWidths, NotSet);
    setAll(r, fields::Stresses, NotSet);
    r.reservedD = NotSet;
    r.reservedS = NotSet;
    r.reservedM = 0; // intentionally not NotSet, unlike reservedD and reservedS
    return r;
}

bool hasDistances(int kindOfSystem)
{
    return kindOfSystem < 10 || kindOfSystem > 19;
}

void toEditedForm(tagZOB_QUAD_RIM& record, int kindOfSystem)
{
    if (!hasDistances(kindOfSystem))
        return clearDistances(record);
    tripleToEdited(record.hio, record.hioq, record.hioi);
    tripleToEdited(record.hiu, record.hiuq, record.hiui);
}

void toStoredForm(tagZOB_QUAD_RIM& record, int kindOfSystem)
{
    if (!hasDistances(kindOfSystem))
        return clearDistances(record);
    tripleToStored(record.hio, record.hioq, record.hioi);
    tripleToStored(record.hiu, record.hiuq, record.hiui);
}

void cleanRecord(tagZOB_QUAD_RIM& record)
{
    for (RealField field : fields::CrackWidths)
        clearNegative(record.*field);
    for (RealField field : fields::Stresses)
        clearNegative(record.*field);
    for (RealField field : fields::Distances)
        clearNegative(record.*field);
    // Intentionally, only this field is not compared with 99999.0 and keeps such a value.
    if (record.dio <= 0)
        record.dio = NotSet;
    for (RealField field : fields::Diameters)
        if (field != &tagZOB_QUAD_RIM::dio)
            clearZeroOrNegative(record.*field);
    clearZeroOrNegative(record.reservedD);
    for (RealField field : fields::Minimum)
        clearNegative(record.*field);
    clearNegative(record.reservedS);
    for (RealField field : fields::Maximum)
        clearNegative(record.*field);
    clearNegative(record.reservedM);
    if (record.group < 0)
        record.subId = 0;
}

bool recordsEqual(const tagZOB_QUAD_RIM& a, const tagZOB_QUAD_RIM& b)
{
    return a.type == b.type && a.mode == b.mode && a.mark == b.mark && a.reservedM == b.reservedM &&
           equal(a, b, fields::Directions) && equal(a, b, fields::Reference) &&
           equal(a, b, fields::Distances) && equal(a, b, fields::Diameters) &&
           equal(a, b, fields::Minimum) && equal(a, b, fields::Maximum) &&
           equal(a, b, fields::CrackWidths) && equal(a, b, fields::Stresses);
}

bool isDesignRecord(const tagZOB_QUAD_RIM& record)
{
    return (record.mark == 0 || record.mark == 11) && record.subId == 0;
}

RecordBytes toBytes(const tagZOB_QUAD_RIM& record)
{
    RecordBytes bytes;
    qToLittleEndian<quint32>(&record, sizeof record / 4, bytes.data());
    return bytes;
}

tagZOB_QUAD_RIM fromBytes(const RecordBytes& bytes)
{
    tagZOB_QUAD_RIM record;
    qFromLittleEndian<quint32>(bytes.data(), sizeof record / 4, &record);
    return record;
}

} // namespace plib
