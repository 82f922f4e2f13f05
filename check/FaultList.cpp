#include "FaultList.h"

#include <array>
#include <cstdio>

#include "Paths.h"

namespace folionet {

void FaultList::Add(const std::string& path, std::size_t line, const std::string& text) {
  if (++m_count > kMostListed) return;
  const std::string place = path + (line != 0 ? ":" + std::to_string(line) : "");
  std::fputs((place + ": " + text + "\n").c_str(), stdout);
}

void FaultList::Add(const RunTimeError& error) {
  const std::string text(StandardMessage(error.Number()));
  Add(error.Item(), error.Line(), error.Detail().empty() ? text + "." : text + ". " + error.Detail());
}

void FaultList::CheckLetterCase(const std::string& found, const std::string& expected) {
  const std::string exact = NativePath(expected);
  if (found != exact) Add(found, 0, "The name is found only in another letter case; it should be " + exact);
}

void FaultList::PrintCount() const {
  if (m_count > kMostListed) std::printf("%zu more are not listed.\n", m_count - kMostListed);
  std::printf("%zu %s found.\n", m_count, m_count == 1 ? "fault" : "faults");
}

void FaultList::CheckBytes(const std::string& path, std::size_t line, std::string_view bytes) {
  const std::size_t at = m_codePage.FindUndecodable(bytes);
  if (at == std::string_view::npos) return;
  std::array<char, 8> hex{};
  std::snprintf(hex.data(), hex.size(), "0x%02X", static_cast<unsigned>(static_cast<unsigned char>(bytes[at])));
  Add(path, line,
      "The charset " + m_codePage.Name() + " does not hold the byte " + hex.data() + " at column " +
          std::to_string(at + 1) + ".");
}

}  // namespace folionet
