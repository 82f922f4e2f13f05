#pragma once

#include "AppState.h"

namespace folionet {

// Reads what pages are to declare, and shows the two entries in the status bar: the stored codes or, where the person
// has stored none, those of an imported text. Throws RunTimeError for an entry that cannot be read.
PageEncoding ReadEncoding(AppState& state);

// Has the pages declare these codes from now on or, where the person has typed one, that one.
void UseEncoding(AppState& state, const PageEncoding& read);

}  // namespace folionet
