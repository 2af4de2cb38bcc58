#pragma once

#include "grid/property.h"

#include <string>

namespace lunavox {

/// Which bitmap of the skin each of the four skinned buttons shows, by its name without folder and
/// extension. The 1 pictures are idle, the 2 pictures pressed.
struct ButtonPictures {
  Property<std::string> playnotes{"play1"};      ///< play1, play2, stop1, stop2
  Property<std::string> recordnotes{"record1"};  ///< record1, record2, stoprec1, stoprec2
  Property<std::string> addbook{"addbook1"};     ///< addbook1, addbook2
  Property<std::string> delbook{"delbook1"};     ///< delbook1, delbook2
};

}  // namespace lunavox
