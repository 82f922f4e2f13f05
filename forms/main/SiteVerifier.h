#pragma once

#include <QWidget>
#include <string>

#include "UserInterface.h"

namespace folionet {

// Looks through the site of an index page for links that lead nowhere, beside the form, which shows how far that is and
// has a way to stop it; tells what was found, and asks whether to remove the pages that nothing leads to.
void VerifyWrittenSite(const std::string& indexPage, QWidget& form, UserInterface& ui);

}  // namespace folionet
