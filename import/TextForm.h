#pragma once

#include <memory>
#include <string_view>

#include "BibleBuilder.h"

namespace folionet {

// A form in which Bible texts come.
enum class FormKind { kNone, kUsfm, kUsx, kUsfx, kOsis, kZefania, kLines };

// The name of a form in messages: "USFM", "one verse a line".
std::string_view NameOf(FormKind kind);

// The form of a file that begins with this UTF-8 text, kNone when it is none of them.
FormKind FormOf(std::string_view head);

// Reads one file of a form, piece by piece, into a builder.
class TextForm {
 public:
  virtual ~TextForm() = default;

  // Takes the next piece of the file's text, in UTF-8, cut between any two characters. Throws RunTimeError, which
  // names file and line, and TextFault.
  virtual void Read(std::string_view piece) = 0;
  virtual void Finish() = 0;
};

// What reads the file; the builder outlives it.
std::unique_ptr<TextForm> MakeForm(FormKind kind, BibleBuilder& builder);

}  // namespace folionet
