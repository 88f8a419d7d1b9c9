#include "wordlist_test_util.h"

namespace jeerbox::testing {

ToolRun RunJeer(const std::string& args) { return RunCommand(std::string(JEER_PATH) + " " + args); }

}  // namespace jeerbox::testing
