// What the main window draws itself, behind its controls: the band, the
// banner, the shapes and the labels. Also the sizes of everything, in
// twips scaled to the screen.
#pragma once

#include <windows.h>

#include <string>

namespace jeerbox {

// A control's place in twips, 1/1440 inch: 15 to a pixel at 96 dpi.
struct Twips {
  int left, top, width, height;
};

struct DialogPaint {
  DialogPaint(HINSTANCE instance, std::wstring sponsorLine);
  ~DialogPaint();
  DialogPaint(const DialogPaint&) = delete;
  DialogPaint& operator=(const DialogPaint&) = delete;

  int Px(int twips) const { return MulDiv(twips, dpi, 1440); }
  RECT Rect(const Twips& t) const {
    return {Px(t.left), Px(t.top), Px(t.left + t.width), Px(t.top + t.height)};
  }
  // Back to front: band, banner, sponsor line, help, border, title.
  void Paint(HDC dc) const;

  int dpi;
  HFONT dialogFont;  // Tahoma 8.25
  HFONT insultFont;  // Tahoma 9.75 bold
  HFONT titleFont;   // Tahoma 9 bold underlined
  HBRUSH white;
  HBITMAP banner;
  HCURSOR hand;
  HICON bigIcon, smallIcon;
  std::wstring sponsorLine;
};

constexpr COLORREF kTeal = RGB(0, 128, 128);
constexpr Twips kClientArea{0, 0, 6660, 5205};
constexpr Twips kBannerPlace{120, 4200, 6435, 660};

}  // namespace jeerbox
