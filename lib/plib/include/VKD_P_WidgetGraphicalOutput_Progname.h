#pragma once

/// The kind of a graphical output page. Hosts may pass any value. Each plot of the catalogue lists
/// three values and is offered by pages that have one of these values. Only the values for Split
/// and Prefix change the behaviour of the page itself.
enum VKD_P_WidgetGraphicalOutput_Progname : int {
    VKD_P_GraphicalOutput_Standard = 1, ///< page for which the shipped catalogue is written
    VKD_P_GraphicalOutput_Split = 122,  ///< no script, only two alternative page setups
    VKD_P_GraphicalOutput_Prefix = 222  ///< additional text is inserted before the plots
};
