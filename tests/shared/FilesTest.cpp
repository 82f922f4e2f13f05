#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <array>
#include <cstddef>
#include <thread>

#include "OpenBeneath.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "TemporaryFolder.h"
#include "WholeFile.h"

namespace folionet {
namespace {

TEST(PathsTest, SeparatorsOfEitherKindAreTaken) {
  EXPECT_EQ(WithSeparator("/a"), "/a/");
  EXPECT_EQ(WithSeparator("/a/"), "/a/");
  EXPECT_EQ(WithSeparator("C:\\"), "C:\\");
  EXPECT_EQ(NativePath("a\\b/c"), "a/b/c");
}

TEST(WholeFileTest, FollowsALinkAndKeepsTheMode) {
  const test::TemporaryFolder folder;
  const std::string target = folder.Write("target", "old");
  std::filesystem::create_symlink(target, folder.Path() + "link");
  ASSERT_EQ(chmod(target.c_str(), 0640), 0);
  ReplaceWholeFile(folder.Path() + "link", "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() + "link"));
  EXPECT_EQ(folder.Read("target"), "new");
  EXPECT_EQ(static_cast<int>(std::filesystem::status(target).permissions()), 0640);
}

// Writers refuse what readers refuse, and leave it there. No name in the folder of the device can be changed.
TEST(WholeFileTest, NothingButARegularFileIsReplaced) {
  const test::TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path() + "folder");
  ASSERT_EQ(mkfifo((folder.Path() + "pipe").c_str(), 0600), 0);
  for (const std::string target : {"folder", "pipe", "none", "/dev/pts/ptmx"}) {
    std::filesystem::create_symlink(target, folder.Path() + "link to " + (target[0] == '/' ? "device" : target));
  }
  std::filesystem::create_symlink("link to itself", folder.Path() + "link to itself");
  const struct {
    const char* name;
    const char* error;
  } cases[] = {
      {"folder", "Path/File access error: %: It is not a regular file."},
      {"pipe", "Path/File access error: %: It is not a regular file."},
      {"link to folder", "Path/File access error: %folder: It is not a regular file."},
      {"link to pipe", "Path/File access error: %pipe: It is not a regular file."},
      {"link to device", "Path/File access error: /dev/pts/ptmx: It is not a regular file."},
      {"link to none", "Path/File access error: %: It is a link to a file that is not there. Remove it."},
      {"link to itself", "Path/File access error: %: Too many levels of symbolic links"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const std::string path = folder.Path() + c.name;
    struct stat before {};
    ASSERT_EQ(lstat(path.c_str(), &before), 0);
    std::string expected = c.error;
    if (const std::size_t at = expected.find('%'); at != std::string::npos) {
      expected.replace(at, 1, expected[at + 1] == ':' ? path : folder.Path());
    }
    try {
      ReplaceWholeFile(path, "new");
      ADD_FAILURE() << "it is replaced";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.what(), expected);
    }
    struct stat after {};
    ASSERT_EQ(lstat(path.c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
  }
}

TEST(WholeFileTest, NamesOnItsWayAreItsOwn) {
  const test::TemporaryFolder folder;
  folder.Write("header.new", "a person's");
  folder.Write(".header.folionet-new", "left by a killed program");
  ReplaceWholeFile(folder.Path() + "header", "new");
  EXPECT_EQ(folder.Read("header"), "new");
  EXPECT_EQ(folder.Read("header.new"), "a person's");
  EXPECT_FALSE(folder.Has(".header.folionet-new"));
  std::filesystem::create_hard_link(folder.Path() + "header.new", folder.Path() + ".header.folionet-new");
  try {
    ReplaceWholeFile(folder.Path() + "header", "newer");
    ADD_FAILURE() << "another file is written over";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Detail(), "\".header.folionet-new\" beside it is in the way. Remove it.");
  }
  EXPECT_EQ(folder.Read("header.new"), "a person's");
}

// What comes of opening paths beneath a folder: "file" and the like is what was read.
void ExpectNothingOutside(const test::TemporaryFolder& home) {
  const FileHandle folder = FileHandle::Open((home.Path() + "folder").c_str(), O_RDONLY | O_DIRECTORY);
  const std::pair<const char*, int> cases[] = {
      {"inside", 0},      {"sub/../inside", 0},        {"sub/./deep", 0},  {"link", 0},      {"sub/back", 0},
      {"chain", 0},       {"../folder/inside", EXDEV}, {"up", EXDEV},      {"whole", EXDEV}, {"sub/far", EXDEV},
      {"through", EXDEV}, {"circle", ELOOP},           {"nowhere", ENOENT}};
  for (const auto& [path, error] : cases) {
    errno = 0;
    const FileHandle file = OpenBeneath(folder.Get(), path, O_RDONLY);
    EXPECT_EQ(file.IsOpen() ? 0 : errno, error) << path;
    std::array<char, 8> text{};
    EXPECT_TRUE(!file.IsOpen() || (read(file.Get(), text.data(), 2) == 2 && text[0] == 'i')) << path;
  }
}

// As a kernel answers that lacks the call, for this thread.
void TakeAwayOpenat2() {
  sock_filter filter[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat2, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  };
  const sock_fprog program{std::size(filter), filter};
  EXPECT_EQ(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
  EXPECT_EQ(prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program), 0);
  EXPECT_TRUE(syscall(SYS_openat2, AT_FDCWD, "/", nullptr, 0) < 0 && errno == ENOSYS);
}

TEST(OpenBeneathTest, NoLinkLeadsOutWhateverTheKernel) {
  const test::TemporaryFolder home;
  for (const char* name : {"folder/inside", "folder/sub/deep"}) home.Write(name, "in");
  home.Write("outside", "out");
  const std::pair<const char*, std::string> links[] = {
      {"link", "inside"},   {"sub/back", "../inside"},           {"chain", "sub/back"},
      {"up", "../outside"}, {"whole", home.Path() + "outside"},  {"sub/far", "../../outside"},
      {"circle", "circle"}, {"through", "sub/../../folder/link"}};
  for (const auto& [name, target] : links) std::filesystem::create_symlink(target, home.Path() + "folder/" + name);
  ExpectNothingOutside(home);
  std::thread([&] {
    TakeAwayOpenat2();
    ExpectNothingOutside(home);
  }).join();
}

// What a person was told of is not told again; another number, thing, place, line or reason is.
TEST(RunTimeErrorTest, IsTheSameFailureWhenAllOfItIs) {
  const RunTimeError told = RunTimeError(kFileNotFound, "/a", "x", 2).About(Subject::kBookTitles);
  EXPECT_TRUE(IsSameFailure(told, RunTimeError(kFileNotFound, "/a", "x", 2).About(Subject::kBookTitles)));
  for (const RunTimeError& other : {RunTimeError(kFileNotFound, "/a", "x", 2),
                                    RunTimeError(kPathNotFound, "/a", "x", 2).About(Subject::kBookTitles),
                                    RunTimeError(kFileNotFound, "/b", "x", 2).About(Subject::kBookTitles),
                                    RunTimeError(kFileNotFound, "/a", "y", 2).About(Subject::kBookTitles),
                                    RunTimeError(kFileNotFound, "/a", "x", 3).About(Subject::kBookTitles)}) {
    EXPECT_FALSE(IsSameFailure(told, other)) << other.what();
  }
}

}  // namespace
}  // namespace folionet
