#pragma once

#include <string>
#include <string_view>

namespace folionet {

// Addresses are UTF-8, their character references resolved.

// A text without the blanks that HTML passes over at both of its ends.
std::string_view TrimmedAsHtml(std::string_view text);

// The address that a refresh, "0; url=next.html", leads to; empty when it names none.
std::string_view RefreshAddress(std::string_view content);

// What a part of an address, such as a name in it, is in the file system: tabs and line breaks in it do not count, and
// percent-encoding is resolved.
std::string AsFileName(std::string_view part);

// The path that an address leads to, relative to the page's folder: blanks around it and percent-encoding are resolved,
// query and fragment are gone. Empty for an address of the page itself or of another site.
std::string LocalTarget(std::string_view address);

// Whether an address is one of another site.
bool IsElsewhere(std::string_view address);

}  // namespace folionet
