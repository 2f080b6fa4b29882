#pragma once

#include <tagZOB_QUAD_RIM.h>

#include <array>

namespace plib {

constexpr float NotSet = -99999.0F;

/// How the layers of an element are designed: tagZOB_QUAD_RIM::type.
enum DesignType {
    NoDesign = 0,
    TwoLayersOrthogonal = 1,
    TwoLayers = 2,
    ThreeLayers = 3,
    Circular = 4,
};

/// The record that a new row starts from, in the stored form. For the remaining groups it has the
/// group -1 and the type 1, else the group 0 and no design.
tagZOB_QUAD_RIM getDefaultMerPara(bool forRemainingGroups);

/// Whether a kind of system has distances between layers: plane systems (10 to 19) have no layers
/// above each other.
bool hasDistances(int kindOfSystem);

/// From stored distances to edited ones: spacings where the layers lie in order, else not set.
/// Without distances in the system all six become not set.
void toEditedForm(tagZOB_QUAD_RIM& record, int kindOfSystem);

/// The way back, to distances from the surface.
void toStoredForm(tagZOB_QUAD_RIM& record, int kindOfSystem);

/// Makes what other programs write for "not set" the one value that stands for it here. For records
/// that come from the store, in the edited form.
void cleanRecord(tagZOB_QUAD_RIM& record);

/// Whether two records state the same parameters: all fields from `type` on but `reservedD` and
/// `reservedS`. A NaN is unequal to everything, itself too.
bool recordsEqual(const tagZOB_QUAD_RIM& a, const tagZOB_QUAD_RIM& b);

/// Whether the record belongs to the design parameters and not to another program.
bool isDesignRecord(const tagZOB_QUAD_RIM& record);

/// The bytes of a record as the store keeps them, little-endian on any machine.
using RecordBytes = std::array<char, sizeof(tagZOB_QUAD_RIM)>;
RecordBytes toBytes(const tagZOB_QUAD_RIM& record);
tagZOB_QUAD_RIM fromBytes(const RecordBytes& bytes);

} // namespace plib
