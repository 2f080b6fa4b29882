#pragma once

/// The kind of a graphical output page. Hosts may pass any value; a plot of the catalogue is
/// offered on a page whose value is one of the plot's three. Only two values change the page
/// itself.
enum VKD_P_WidgetGraphicalOutput_Progname : int {
    VKD_P_GraphicalOutput_Standard = 1, ///< the page that the shipped catalogue serves
    VKD_P_GraphicalOutput_Split = 122,  ///< no script, only the page setup in two alternatives
    VKD_P_GraphicalOutput_Prefix = 222  ///< additional text goes ahead of the plots
};
