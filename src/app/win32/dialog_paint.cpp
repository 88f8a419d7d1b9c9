// The main window's own drawing, with GDI, and the fonts, pictures and
// cursor it needs from the program's resources.
#include "app/win32/dialog_paint.h"

#include "app/win32/resource_ids.h"

namespace jeerbox {
namespace {

constexpr COLORREF kBandBlue = RGB(0, 153, 255);
constexpr COLORREF kBandOutline = RGB(0, 64, 64);

constexpr Twips kBand{-270, 4080, 7215, 1575};
constexpr Twips kSponsoredBy{120, 4920, 6435, 210};
constexpr Twips kHelp{150, 480, 6375, 855};
constexpr Twips kBorder{150, 1200, 6375, 2295};
constexpr Twips kTitle{150, 120, 4965, 210};

const wchar_t kHelpText[] =
    L"Jeerbox will generate offensive insults for you on demand. Never again be stuck for a cutting remark! "
    L"Please show your support for this FREE product by visiting our sponsor's website. Jeerbox contains no "
    L"spyware or malware of any kind";
const wchar_t kTitleText[] = L"Thank you for using Jeerbox - by Hollowmere";

int ScreenDpi() {
  HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return dpi > 0 ? dpi : 96;
}

// Hundredths of a point, so that 8.25 and 9.75 come out as they should.
HFONT Tahoma(int centipoints, int dpi, bool bold, bool underline) {
  return CreateFontW(-MulDiv(centipoints, dpi, 7200), 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, underline,
                     FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                     DEFAULT_PITCH | FF_SWISS, L"Tahoma");
}

// A rectangle whose outline lies inside it, as wide as it is told.
void Shape(HDC dc, const RECT& r, COLORREF outline, int width, HBRUSH fill) {
  HPEN pen = CreatePen(PS_INSIDEFRAME, width, outline);
  HGDIOBJ oldPen = SelectObject(dc, pen);
  HGDIOBJ oldBrush = SelectObject(dc, fill ? static_cast<HGDIOBJ>(fill) : GetStockObject(NULL_BRUSH));
  Rectangle(dc, r.left, r.top, r.right, r.bottom);
  SelectObject(dc, oldBrush);
  SelectObject(dc, oldPen);
  DeleteObject(pen);
}

void Label(HDC dc, const RECT& r, const std::wstring& text, HFONT font, COLORREF colour, UINT format) {
  HGDIOBJ old = SelectObject(dc, font);
  SetTextColor(dc, colour);
  RECT box = r;
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &box, format | DT_NOPREFIX);
  SelectObject(dc, old);
}

}  // namespace

DialogPaint::DialogPaint(HINSTANCE instance, std::wstring sponsor)
    : dpi(ScreenDpi()),
      dialogFont(Tahoma(825, dpi, false, false)),
      insultFont(Tahoma(975, dpi, true, false)),
      titleFont(Tahoma(900, dpi, true, true)),
      white(CreateSolidBrush(RGB(255, 255, 255))),
      banner(static_cast<HBITMAP>(
          LoadImageW(instance, MAKEINTRESOURCEW(JEERBOX_BANNER), IMAGE_BITMAP, 0, 0, 0))),
      hand(static_cast<HCURSOR>(
          LoadImageW(instance, MAKEINTRESOURCEW(JEERBOX_HAND_CURSOR), IMAGE_CURSOR, 0, 0, LR_DEFAULTSIZE))),
      bigIcon(static_cast<HICON>(LoadImageW(instance, MAKEINTRESOURCEW(JEERBOX_ICON), IMAGE_ICON,
                                            GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON), 0))),
      smallIcon(
          static_cast<HICON>(LoadImageW(instance, MAKEINTRESOURCEW(JEERBOX_ICON), IMAGE_ICON,
                                        GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), 0))),
      sponsorLine(std::move(sponsor)) {}

DialogPaint::~DialogPaint() {
  for (HGDIOBJ object :
       {static_cast<HGDIOBJ>(dialogFont), static_cast<HGDIOBJ>(insultFont), static_cast<HGDIOBJ>(titleFont),
        static_cast<HGDIOBJ>(white), static_cast<HGDIOBJ>(banner)})
    if (object) DeleteObject(object);
  if (hand) DestroyCursor(hand);
  if (bigIcon) DestroyIcon(bigIcon);
  if (smallIcon) DestroyIcon(smallIcon);
}

void DialogPaint::Paint(HDC dc) const {
  HBRUSH band = CreateSolidBrush(kBandBlue);
  Shape(dc, Rect(kBand), kBandOutline, 1, band);
  DeleteObject(band);
  if (banner) {
    BITMAP size{};
    GetObjectW(banner, sizeof size, &size);
    HDC source = CreateCompatibleDC(dc);
    HGDIOBJ old = SelectObject(source, banner);
    const RECT r = Rect(kBannerPlace);
    SetStretchBltMode(dc, HALFTONE);
    StretchBlt(dc, r.left, r.top, r.right - r.left, r.bottom - r.top, source, 0, 0, size.bmWidth,
               size.bmHeight, SRCCOPY);
    SelectObject(source, old);
    DeleteDC(source);
  }
  SetBkMode(dc, TRANSPARENT);
  Label(dc, Rect(kSponsoredBy), sponsorLine, dialogFont, RGB(255, 255, 255), DT_CENTER | DT_SINGLELINE);
  Label(dc, Rect(kHelp), kHelpText, dialogFont, kTeal, DT_LEFT | DT_WORDBREAK);
  Shape(dc, Rect(kBorder), kTeal, MulDiv(2, dpi, 96), nullptr);
  // Sized to its text: drawn from its corner, not cut at its width.
  Label(dc, Rect(kTitle), kTitleText, titleFont, kTeal, DT_LEFT | DT_SINGLELINE | DT_NOCLIP);
}

}  // namespace jeerbox
