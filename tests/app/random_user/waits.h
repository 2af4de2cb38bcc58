#pragma once

#include "user_action.h"

namespace lunavox::test {

/// A script to be shortened: as many waits, told apart by their numbers from 0.
inline Script waits(int count) {
  Script script;
  for (int i = 0; i < count; ++i) script.push_back({Deed::kWait, i, 0});
  return script;
}

}  // namespace lunavox::test
