#include "frmCustomizeFooter.h"

namespace folionet {
namespace {

constexpr CustomHtmlDialogKind kFooterDialog{
    kCustomFooter,
    "frmCustomizeFooter",
    "Custom Footer - Paste HTML Code here.",
    "cmdDone",
    // The last line speaks of the header here too: that is meant.
    "NOTE:\n"
    "The custom footer must ONLY include the HTML source between the BODY tags.\n"
    "Any other HTML will cause the header to interfere with the rest of the page.",
    &PageTexts::CustomFooter,
};

}  // namespace

frmCustomizeFooter::frmCustomizeFooter(AppState& state, QWidget* parent)
    : CustomHtmlDialog(state, kFooterDialog, parent) {}

}  // namespace folionet
