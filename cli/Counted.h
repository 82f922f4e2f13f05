#pragma once

#include <cstddef>
#include <string>

namespace folionet {

// "1 page", "2 pages"
inline std::string Counted(std::size_t number, const char* thing) {
  return std::to_string(number) + " " + thing + (number == 1 ? "" : "s");
}

}  // namespace folionet
