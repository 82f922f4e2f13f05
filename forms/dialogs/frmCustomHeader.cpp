#include "frmCustomHeader.h"

namespace folionet {
namespace {

constexpr CustomHtmlDialogKind kHeaderDialog{
    kCustomHeader,
    "frmCustomHeader",
    "Custom Header - Paste HTML Code here.",
    "Command1",
    "NOTE:\n"
    "The custom header must ONLY include the HTML source between the BODY tags.\n"
    "Any other HTML will cause the header to interfere with the rest of the page.",
    &PageTexts::CustomHeader,
};

}  // namespace

frmCustomHeader::frmCustomHeader(AppState& state, QWidget* parent) : CustomHtmlDialog(state, kHeaderDialog, parent) {}

}  // namespace folionet
