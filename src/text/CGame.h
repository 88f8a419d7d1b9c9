// The game context a text generator can take its named tokens from. This
// program has none: every property is empty.
#pragma once

#include <string>

namespace jeerbox {

class CGame {
 public:
  virtual ~CGame() = default;
  virtual std::string Name() const { return std::string(); }
  virtual std::string Rating() const { return std::string(); }
  virtual std::string WeaponName() const { return std::string(); }
  virtual const CGame* Player() const { return nullptr; }
  virtual const CGame* City() const { return nullptr; }
};

}  // namespace jeerbox
