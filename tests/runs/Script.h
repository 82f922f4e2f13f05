#pragma once

#include <string>
#include <vector>

namespace folionet::test {

// A case of a file of runs: what is done, and the whole text that it and what comes of it should give.
struct ScriptCase {
  std::string before;  // comments, blank lines and the line with its name
  std::string name;
  std::vector<std::string> lines;  // what is done
  std::string text;
};

std::vector<ScriptCase> ReadScript(const std::string& path);

// The files of a folder that end in .runs, without that.
std::vector<std::string> ScriptNames(const std::string& folder);

// The words of a line, as RunsTest.cpp says that they are written.
std::vector<std::string> SplitWords(const std::string& line);

// Each line of a text behind a mark; what cannot be printed is made visible, and many lines are shortened.
std::string MarkLines(const std::string& mark, const std::string& text);

void Replace(std::string& text, const std::string& old, const std::string& by);

// Does what a line such as "write FILE TEXT..." says in a folder; false when it says something else.
bool Arrange(const std::string& home, const std::vector<std::string>& words);

}  // namespace folionet::test
