#include "UsfmMarkers.h"

#include <map>
#include <utility>

#include "Text.h"

namespace folionet {
namespace {

// Every marker of USFM 3; one with a level, such as "q2", under its name without the number.
constexpr std::pair<MarkerKind, std::string_view> kMarkers[] = {
    {MarkerKind::kBook, "id"},
    {MarkerKind::kHeader, "h h1"},
    {MarkerKind::kToc1, "toc1"},
    {MarkerKind::kToc2, "toc2"},
    {MarkerKind::kChapter, "c"},
    {MarkerKind::kVerse, "v"},
    {MarkerKind::kParagraph, "b cls lf lh li lim m mi nb p pc ph phi pi pm pmc pmo pmr po pr ps psi q qc qd qm qr tr"},
    {MarkerKind::kCell, "tc tcc tcr th thc thr"},
    {MarkerKind::kCanonicalTitle, "d"},
    {MarkerKind::kLeftOutParagraph,
     "cd cl conc cov cp erq glo h2 h3 ib ide idx ie iex ili im imi imq imt imte intro io iot ip ipi ipq ipr "
     "iq is lit maps mr ms mse mt mte pb periph pref pub pubinfo qa r rem restore s sd sp spd spine sr sts "
     "toc toc3 toca usfm"},
    {MarkerKind::kSidebar, "esb"},
    {MarkerKind::kSidebarEnd, "esbe"},
    {MarkerKind::kCharacter,
     "add addpn bd bdit bk dc em it jmp k lik litl liv nd ndx no ord pn png qac qs qt rb ref sc sig sls sup "
     "tl w wa wg wh wj wr"},
    {MarkerKind::kLeftOutCharacter,
     "ca cat fdc fig fk fl fm fp fq fqa fr fs ft fv fw ior iqt pro rq va vp xdc xk xnt xo xop xot xq xt xtSee "
     "xtSeeAlso xta"},
    {MarkerKind::kNote, "ef efe ex f fe x"},
    {MarkerKind::kMilestone, "ts"},
};

std::map<std::string_view, MarkerKind> KindsByName() {
  std::map<std::string_view, MarkerKind> kinds;
  for (const auto& [kind, names] : kMarkers) {
    for (const std::string_view name : SplitAt(names, " ")) kinds.emplace(name, kind);
  }
  return kinds;
}

MarkerKind Find(std::string_view name) {
  static const std::map<std::string_view, MarkerKind> kinds = KindsByName();
  const auto found = kinds.find(name);
  return found == kinds.end() ? MarkerKind::kUnknown : found->second;
}

}  // namespace

MarkerKind KindOfMarker(std::string_view name) {
  const MarkerKind exact = Find(name);
  if (exact != MarkerKind::kUnknown) return exact;
  if (name.ends_with("-s") || name.ends_with("-e")) return MarkerKind::kMilestone;
  constexpr std::string_view kLevel = "0123456789-";  // "q2", and "tc1-2" for a cell that spans columns
  const bool isEnd = name.ends_with('e') && Find(name.substr(0, name.find_last_not_of("0123456789e") + 1)) ==
                                                MarkerKind::kLeftOutParagraph;  // "s1e" ends a section
  if (isEnd) return MarkerKind::kLeftOutParagraph;
  return Find(name.substr(0, name.find_last_not_of(kLevel) + 1));
}

}  // namespace folionet
