#pragma once

/// The kind of a graphical output page. Hosts may pass any value. A plot of the catalogue lists
/// three values, and pages with one of them offer it. Only Split and Prefix change the page itself.
enum VKD_P_WidgetGraphicalOutput_Progname : int {
    VKD_P_GraphicalOutput_Standard = 1, ///< the page for which the shipped catalogue is written
    VKD_P_GraphicalOutput_Split = 122,  ///< no script, only the page setup in two alternatives
    VKD_P_GraphicalOutput_Prefix = 222  ///< additional text is inserted before the plots
};
