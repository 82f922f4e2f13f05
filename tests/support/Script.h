#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace folionet::test {

// A line of a case that does something or looks at something, and the lines that come of it.
struct ScriptStep {
  int number = 0;         // of the line in its file, from 1
  bool isBehind = false;  // another step on the same line
  std::string line;
  std::vector<std::string> outcome;
};

// A case of a file tests/runs/*.runs; tests/runs/README.md tells the language.
struct ScriptCase {
  std::string file;   // its path
  std::string topic;  // the file's name without what follows its dot
  std::string name;
  int number = 0;  // of the line with the name
  std::vector<ScriptStep> steps;
};

// Does what a line says and gives it as it should stand, with the lines that come of it.
using StepRunner = std::function<std::vector<std::string>(const std::string& line)>;

// The cases of all files of runs that drive the forms, whose names begin with "form_", or of the others; a name that a
// file has twice throws.
enum class Drives { kPrograms, kForms };
std::vector<ScriptCase> ReadScripts(Drives what);

// Makes each of them a test "file.Name"; Fixture takes the case.
template <typename Fixture>
void RegisterScripts(Drives what) {
  for (const ScriptCase& script : ReadScripts(what)) {
    testing::RegisterTest(script.topic.c_str(), script.name.c_str(), nullptr, nullptr, script.file.c_str(),
                          script.number, [script]() -> Fixture* { return new Fixture(script); });
  }
}

// Fails, at the line of the file, where what comes of a step is not what stands there. A line that ends in "..." holds
// for all that begin with it. With FOLIONET_REWRITE_EXPECTED=1 the file gets what came instead.
void RunScript(const ScriptCase& script, const StepRunner& runner);

// The words of a line: blanks stand between them, a text in double quotes is one.
std::vector<std::string> SplitWords(const std::string& line);

// True when a text is the expected one, or begins as it does where that ends in "...".
bool Holds(const std::string& expected, const std::string& actual);

// A text on one line, with what cannot be printed made visible.
std::string Visible(const std::string& text);

// Each line of a text behind a mark, made visible; many lines are shortened.
std::vector<std::string> MarkLines(const std::string& mark, const std::string& text);

void Replace(std::string& text, const std::string& old, const std::string& by);

// Does what a line such as "write FILE TEXT..." says in a folder; false when it says something else.
bool Arrange(const std::string& home, const std::vector<std::string>& words);

}  // namespace folionet::test
