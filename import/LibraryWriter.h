#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "LibraryPlan.h"
#include "MakeFolders.h"

// Writes what an import has planned, in the layout of LibraryFiles.h.
//
// A verse is a line of five fields, separated by tabs: running number, book, chapter, verse, text. A chapter is a line
// of the index, seven fields separated by commas: running number, byte offset of its first verse line in the verse
// file, book, chapter, number of verses, length of its verse lines in bytes, quoted label of the book. Running numbers
// count from 1; lines end in CR LF.
//
//   1<TAB>1<TAB>1<TAB>1<TAB>In the beginning God created the heaven and the earth.
//   1,0,1,1,31,4411,"Gen"

namespace folionet {

// Gives the verse file to `take`, piece by piece, and returns the chapter index.
std::string WriteVerses(const ImportedBible& bible, const LibraryPlan& plan,
                        const std::function<void(std::string_view piece)>& take);

// Writes the plan that was made of the text, all of it or nothing (JointChange.h). Another import into the library is
// waited for, two seconds at most. Throws RunTimeError, also where the catalogue has changed since the plan was made;
// the library is then as it was. What a killed program left half done is completed by StoredSettings::FinishChange.
void WriteLibrary(const ImportedBible& bible, const LibraryPlan& plan);

// Plans and writes in one, behind an import that was waited for; with Doing::kPlan it writes nothing, and throws where
// the writing would, as far as that can be known. Gives the plan.
LibraryPlan ImportLibrary(const ImportedBible& bible, const LibraryRequest& request, Doing doing);

}  // namespace folionet
