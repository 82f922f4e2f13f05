#pragma once

#include <string>

#include "AppState.h"
#include "modGlob.h"

namespace folionet {

// A file of book titles for which the program must end, and every later start would: the one that is chosen, or that an
// imported text brings.
struct UnreadTitles {
  std::string path;   // empty for none
  std::string text;   // the name of the imported text; empty for none
  std::string other;  // the default Language File, or else another one, that can be read; empty for none
};

// Whether it is the titles that end the program: nothing is found where the catalogue in these folders is not sound.
UnreadTitles FindUnreadTitles(const ModGlob& folders, const std::string& chosen, const CodePage& codePage);

// What lets the program start again.
enum class WayOut {
  kNone,         // was taken
  kRestore,      // all settings are to be restored
  kOtherTitles,  // another Language File was stored
};

// Tells the file with the way out, and asks whether to take it.
WayOut OfferWayOut(const UnreadTitles& unread, AppState& state);

}  // namespace folionet
