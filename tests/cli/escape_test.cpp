#include "cli/escape.h"

#include <gtest/gtest.h>

namespace jeerbox {
namespace {

TEST(EscapeBytes, ShowsControlAndHighBytesAsEscapes) {
  EXPECT_EQ(EscapeBytes("plain text ~!"), "plain text ~!");
  EXPECT_EQ(EscapeBytes("a\\b"), "a\\\\b");
  EXPECT_EQ(EscapeBytes("\r\n\t"), "\\r\\n\\t");
  EXPECT_EQ(EscapeBytes(std::string("\0\x1f\x7f\x80\xff", 5)), "\\x00\\x1f\\x7f\\x80\\xff");
}

}  // namespace
}  // namespace jeerbox
