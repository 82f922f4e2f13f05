#pragma once

#include <QWidget>
#include <string>
#include <utility>
#include <vector>

namespace folionet {

// What a person sees of a control or learns about it, as "text=Compile" or "off"; what is usual is left out.
using Traits = std::vector<std::string>;

// The controls of a form and of its dialogs by their names, as FormTest has them: those that take the focus first, in
// the order of the Tab key, then others, then as one "texts" what is a text and nothing else. Nothing in it depends on
// the fonts and colours of a desktop.
using SeenControls = std::vector<std::pair<std::string, Traits>>;
SeenControls ControlsOf(const QWidget& form);

// "name: trait | trait" for each control that is another one than before; "no text" for a trait that is gone.
std::vector<std::string> ChangesOf(const SeenControls& before, const SeenControls& after);

}  // namespace folionet
