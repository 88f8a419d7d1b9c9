// The audio control's contract, the same for every host's: channels 1 to
// 32; every call the audio form makes is safe in every state (never opened,
// open, closed again): it does its part or refuses, and none gets stuck or
// breaks; a file that isn't sound loads nothing and the channel keeps its
// sound; a reset frees every sound.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "helpers/temp_dir.h"

namespace jeerbox::testing {

// `sound` is a file the control can play.
template <typename Control>
void CheckAudioControlContract(Control& control, const std::string& sound) {
  for (const std::string state : {"never opened", "open", "closed"}) {
    SCOPED_TRACE(state);
    if (state == "open") {
      ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
    } else if (state == "closed") {
      EXPECT_TRUE(control.CloseMixer());
    }
    const bool open = state == "open";
    EXPECT_EQ(control.IsOpen(), open);
    EXPECT_TRUE(control.ResetMixer());
    EXPECT_FALSE(control.SetChannel(0));
    EXPECT_FALSE(control.SetChannel(33));
    for (int channel = 1; channel <= 32; ++channel) {
      ASSERT_TRUE(control.SetChannel(channel));
      EXPECT_TRUE(control.SetChannelPan(-90));
      EXPECT_EQ(control.StopChannel(), open) << channel;
      EXPECT_EQ(control.ClearChannel(), open) << channel;
      EXPECT_FALSE(control.PlayChannel(false)) << channel;  // nothing loaded
    }
    EXPECT_TRUE(control.CloseMusic());
    EXPECT_EQ(control.LoadChannel(sound), open);
  }
  TempDir dir;
  dir.Write("text.wav", "this is not a sound at all\n");
  ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));  // and it opens again
  ASSERT_TRUE(control.SetChannel(3));
  ASSERT_TRUE(control.LoadChannel(sound));
  for (const char* name : {"text.wav", "missing.wav"})
    EXPECT_FALSE(control.LoadChannel(dir.Path() + "\\" + name)) << name;
  EXPECT_TRUE(control.PlayChannel(false));
  EXPECT_TRUE(control.ResetMixer());
  EXPECT_FALSE(control.PlayChannel(false));
  EXPECT_TRUE(control.CloseMixer());
}

}  // namespace jeerbox::testing
