// Resource numbers shared by resources.rc and the code.
#pragma once

#define JEERBOX_ICON 1
#define JEERBOX_HAND_CURSOR 2
#define JEERBOX_BANNER 3
