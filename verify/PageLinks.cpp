#include "PageLinks.h"

#include <algorithm>
#include <array>

#include "Addresses.h"
#include "HtmlReader.h"
#include "Utf8.h"

namespace folionet {
namespace {

struct Attribute {
  std::string_view name;
  LinkForm form;
  std::string_view element{};  // the only one that has it; empty when any may
};

constexpr std::array<Attribute, 12> kAttributes{{{"href", LinkForm::kBase, "base"},
                                                 {"href", LinkForm::kPage},
                                                 {"src", LinkForm::kPage, "iframe"},
                                                 {"src", LinkForm::kPage, "frame"},
                                                 {"src", LinkForm::kFile},
                                                 {"background", LinkForm::kFile},
                                                 {"poster", LinkForm::kFile},
                                                 {"data", LinkForm::kPage, "object"},
                                                 {"content", LinkForm::kRefresh, "meta"},
                                                 {"srcset", LinkForm::kPictureSet},
                                                 {"imagesrcset", LinkForm::kPictureSet},
                                                 {"style", LinkForm::kStyle}}};

bool IsRefresh(const HtmlTag& tag) {
  const std::string* const kind = tag.Find("http-equiv");
  return kind != nullptr && EqualIgnoringCase(TrimmedAsHtml(*kind), "refresh");
}

// A link element may name pages too, such as the next one.
LinkForm FormInTag(const HtmlTag& tag, LinkForm form) {
  const std::string* const relation = tag.element == "link" ? tag.Find("rel") : nullptr;
  if (form != LinkForm::kPage || relation == nullptr) return form;
  const std::string lower = FoldCase(*relation);
  const bool isFile = lower.find("stylesheet") != std::string::npos || lower.find("icon") != std::string::npos ||
                      lower.find("preload") != std::string::npos;
  return isFile ? LinkForm::kFile : form;
}

}  // namespace

std::vector<PageLink> FindPageLinks(std::string_view page) {
  std::vector<PageLink> links;
  ReadHtml(page, [&](const HtmlTag& tag) {
    for (const HtmlAttribute& attribute : tag.attributes) {
      const auto* const known = std::find_if(kAttributes.begin(), kAttributes.end(), [&](const Attribute& row) {
        return attribute.name == row.name && (row.element.empty() || tag.element == row.element);
      });
      if (known == kAttributes.end() || (known->form == LinkForm::kRefresh && !IsRefresh(tag))) continue;
      links.push_back({attribute.value, attribute.line, FormInTag(tag, known->form)});
    }
    if (!tag.style.empty()) links.push_back({tag.style, tag.line, LinkForm::kStyle});
    return true;
  });
  return links;
}

}  // namespace folionet
