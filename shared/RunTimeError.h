#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

namespace folionet {

// The numbers by which failures are known to a person; StandardMessage gives each one's text.
inline constexpr int kInvalidProcedureCall = 5;
inline constexpr int kOverflow = 6;
inline constexpr int kOutOfMemory = 7;
inline constexpr int kSubscriptOutOfRange = 9;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kBadFileName = 52;
inline constexpr int kFileNotFound = 53;
inline constexpr int kFileAlreadyOpen = 55;
inline constexpr int kDeviceIoError = 57;
inline constexpr int kDiskFull = 61;
inline constexpr int kInputPastEnd = 62;
inline constexpr int kTooManyFiles = 67;
inline constexpr int kDeviceUnavailable = 68;
inline constexpr int kPermissionDenied = 70;
inline constexpr int kDiskNotReady = 71;
inline constexpr int kPathFileAccessError = 75;
inline constexpr int kPathNotFound = 76;

// The fixed text of an error number, without a full stop; numbers outside the table share one general text.
std::string_view StandardMessage(int number);

// What a failure is about, for those who tell a person what to do.
enum class Subject {
  kNone,
  kSetting,           // the value of one
  kSettingsFile,      // a file that settings are stored in
  kUnfinishedChange,  // of the charset, which a program that was killed has left: its note, or a file that it changes
  kProgramFolder,
  kEncodingList,  // of charsets or languages
  kCustomHtml,    // the header or footer of a person's own
  kStyleSheet,
  kTemplate,  // a text with words to fill in
  kIndexAddress,
  kOutputFolder,
  kPage,  // or another file of a site
  kDefinitionsFolder,
  kCatalogue,
  kBookTitles,
  kChapterIndex,
  kVerseFile,
};

// A statement that failed. Where it ends a step, the routine that carries a report label catches it, hands it to
// UserInterface::ShowErrorReport and leaves; where it does not, whoever can go on without what failed.
class RunTimeError : public std::exception {
 public:
  // `item` is the path or the thing at hand; `line` counts from 1, 0 meaning that there is none; `detail` is the
  // system's own message or what was expected.
  RunTimeError(int number, std::string item, std::string detail = {}, std::size_t line = 0);

  // The error that stands for `systemError` (a value of errno) met while working on `path`. A missing file in a
  // folder that exists is 53, in a missing folder 76.
  static RunTimeError FromErrno(int systemError, const std::string& path);

  // The same error, about this.
  [[nodiscard]] RunTimeError About(Subject subject) const;

  int Number() const { return m_number; }
  Subject About() const { return m_subject; }
  const std::string& Item() const { return m_item; }
  const std::string& Detail() const { return m_detail; }
  std::size_t Line() const { return m_line; }

  // What the report's extra information tells of this error, as lines joined by CR LF:
  //   /lib/Index/KJV.TXT.INDEX
  //   Line 12
  //   a number was expected: "x1"
  std::string Extra() const;

  const char* what() const noexcept override { return m_what.c_str(); }

 private:
  int m_number;
  std::string m_item;
  std::string m_detail;
  std::size_t m_line;
  Subject m_subject = Subject::kNone;
  std::string m_what;
};

// Whether these are one failure to a person: of the same number, about the same thing, at the same place, in the same
// words: two settings of one file are told of by their words alone.
bool IsSameFailure(const RunTimeError& left, const RunTimeError& right);

// Runs `work`, which may know no more of a file than its path: an error that it throws without a subject is about this.
template <typename Work>
auto WorkAbout(Subject subject, const Work& work) -> decltype(work()) {
  try {
    return work();
  } catch (const RunTimeError& error) {
    if (error.About() != Subject::kNone) throw;
    throw error.About(subject);
  }
}

// Leaves a run whose failure has been reported already; the labelled routine that catches it says nothing more.
class AlreadyReported : public std::exception {};

}  // namespace folionet
