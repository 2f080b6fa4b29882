#pragma once

/// The two kinds of groups of a model. A primary group has a number from 0 to 999999. A secondary
/// group has a name of up to four characters. In lists of numbers, the name is padded with spaces
/// and packed into a number of at least 1000000, with the first character in the lowest byte.
enum class VKD_H_GroupKind { Primary, Secondary };
