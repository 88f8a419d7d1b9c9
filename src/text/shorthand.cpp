#include "text/shorthand.h"

#include "text/CTextGenerator.h"

namespace jeerbox {
namespace {

// Per thread, so independent fetches on two threads don't share a budget.
thread_local int tDepth = 0;
thread_local int tLookupsLeft = 0;

}  // namespace

std::string ShorthandText(const std::string& key) {
  if (tDepth == 0) tLookupsLeft = kMaxTokenLookups;
  if (tDepth >= kMaxTokenDepth || tLookupsLeft <= 0) return std::string();
  --tLookupsLeft;
  ++tDepth;
  CTextGenerator generator;
  generator.Setup(nullptr);
  std::string text = generator.GetText(key);
  --tDepth;
  return text;
}

}  // namespace jeerbox
