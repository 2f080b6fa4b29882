#pragma once

#include <tagZOB_QUAD_RIM.h>

#include <array>

namespace plib {

constexpr float NotSet = -99999.0F;

/// The arrangement of the reinforcement layers; the values of tagZOB_QUAD_RIM::type.
enum DesignType {
    NoDesign = 0,
    TwoLayersOrthogonal = 1,
    TwoLayers = 2,
    ThreeLayers = 3,
    Circular = 4,
};

/// Returns the default record of a new row, in the stored form. The record for the remaining groups
/// has group -1 and type 1; any other record has group 0 and no design.
tagZOB_QUAD_RIM getDefaultMerPara(bool forRemainingGroups);

/// Returns whether elements in this kind of system have distances between layers. Elements in plane
/// systems (10 to 19) do not, because their layers are not on top of each other.
bool hasDistances(int kindOfSystem);

/// Converts the distances from the stored form to the edited form. A spacing is reset to "not set"
/// if the layers are not in ascending order. All six fields are reset to "not set" if the kind of
/// system has no distances.
void toEditedForm(tagZOB_QUAD_RIM& record, int kindOfSystem);

/// Converts the distances back to the stored form.
void toStoredForm(tagZOB_QUAD_RIM& record, int kindOfSystem);

/// Replaces the values that other programs write for "not set" with -99999.0. The record must have
/// been read from the store and converted to the edited form.
void cleanRecord(tagZOB_QUAD_RIM& record);

/// Returns whether two records have the same parameters. Compares all fields starting at `type`,
/// except `reservedD` and `reservedS`. A NaN is not equal to any value, including itself.
bool recordsEqual(const tagZOB_QUAD_RIM& a, const tagZOB_QUAD_RIM& b);

/// Returns whether the record belongs to the design parameters and not to another program.
bool isDesignRecord(const tagZOB_QUAD_RIM& record);

/// The bytes of a record as stored, little-endian on any machine.
using RecordBytes = std::array<char, sizeof(tagZOB_QUAD_RIM)>;
RecordBytes toBytes(const tagZOB_QUAD_RIM& record);
tagZOB_QUAD_RIM fromBytes(const RecordBytes& bytes);

} // namespace plib
