#include "NextSteps.h"

#include <array>
#include <utility>

namespace folionet {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 9> kNextSteps{{
    {"No Path", "Give one with --output FOLDER."},
    {"No Bible", "Choose another with --translation NAME; \"folionet-cli list translations\" shows them."},
    {"No HTTP Root", "Give the name or address of the index page, such as --index-address index.html."},
    {"Language not selected", "Give one with --language-file NAME; \"folionet-cli list languages\" shows them."},
    {"Not a valid long file extension",
     "Give an address such as --index-address index.html, or short names with --set Use83=1."},
    {"8.3 filename error", "Give an address such as --index-address index.htm, or long names with --set Use83=0."},
    {"No Bible Selected",
     "No translation has a text that can be read where Versalia keeps it: see \"folionet-cli check\"."},
    {"Path and/or file not found",
     "Give them with --versalia-path FOLDER, which holds Sysdefs and Index, and --module-path FOLDER, which holds "
     "Bible; \"folionet-cli check\" names what is wrong in them."},
    {"INDEX File Not Found", "Then run this command again, or choose another translation with --translation NAME."},
}};

}  // namespace

std::string_view NextStep(std::string_view title) {
  for (const auto& [box, step] : kNextSteps) {
    if (box == title) return step;
  }
  return {};
}

}  // namespace folionet
