#pragma once

#include <stdexcept>

namespace folionet::tools {

// A library could not be built. The message is whole: it names the file, the line where there is one, the offending
// text and what was expected.
class LibraryError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace folionet::tools
