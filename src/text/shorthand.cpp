// The lookups behind the named tokens, and the budget of one request.
#include "text/shorthand.h"

#include <algorithm>
#include <memory>

#include "text/CTextGenerator.h"

namespace jeerbox {
namespace {

struct Request {
  bool open = false;
  int depth = 0;
  int lookupsLeft = 0;
  size_t workLeft = 0;
  // Made on the first lookup, and gone with the request. Each lookup makes
  // the same picks a fresh generator would: the files and line lists it
  // keeps are what a fresh one would read again.
  std::unique_ptr<CTextGenerator> lookups;
};

// Per thread, so independent requests on two threads don't share a budget.
thread_local Request tRequest;

class DepthGuard {
 public:
  DepthGuard() { ++tRequest.depth; }
  ~DepthGuard() { --tRequest.depth; }
  DepthGuard(const DepthGuard&) = delete;
  DepthGuard& operator=(const DepthGuard&) = delete;
};

}  // namespace

ExpansionRequest::ExpansionRequest() : mOwner(!tRequest.open) {
  if (!mOwner) return;
  tRequest.open = true;
  tRequest.depth = 0;
  tRequest.workLeft = kMaxExpansionWork;
}

ExpansionRequest::~ExpansionRequest() {
  if (!mOwner) return;
  tRequest.lookups.reset();
  tRequest.open = false;
}

void SpendWork(size_t bytes) { tRequest.workLeft -= std::min(bytes, tRequest.workLeft); }

bool HasWorkLeft() { return !tRequest.open || tRequest.workLeft > 0; }

std::string ShorthandText(const std::string& key) {
  const ExpansionRequest request;
  Request& r = tRequest;
  if (r.depth == 0) r.lookupsLeft = kMaxTokenLookups;
  if (r.depth >= kMaxTokenDepth || r.lookupsLeft <= 0 || !HasWorkLeft()) return std::string();
  --r.lookupsLeft;
  SpendWork(kLookupWork);
  const DepthGuard deeper;
  try {
    if (!r.lookups) {
      r.lookups = std::make_unique<CTextGenerator>();
      r.lookups->Setup(nullptr);
    }
    return r.lookups->GetText(key);
  } catch (...) {  // memory, say: the token becomes empty and the pick goes on
    return std::string();
  }
}

}  // namespace jeerbox
