#pragma once

namespace folionet {

// Gives the outlines of Qt's own style a colour that can be seen with a dark palette, in all forms; with a light one
// nothing changes, and the style of a desktop is left as it is. Needs the application; before the first form.
void DressApplication();

}  // namespace folionet
