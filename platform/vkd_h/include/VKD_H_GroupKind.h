#pragma once

/// The two kinds of groups of a model. A primary group has a number from 0 to 999999. A secondary
/// group has a name of up to four characters; wherever a list of numbers holds it, it is that name
/// packed into a number from 1000000 on, the first character in the lowest byte and blanks behind.
enum class VKD_H_GroupKind { Primary, Secondary };
