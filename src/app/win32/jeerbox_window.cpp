// The main window's dialog: made from an empty template, its controls
// added in the tab order (Win32's tab order is the order of creation), the
// dialog manager doing Enter, Escape and Tab.
#include "app/win32/jeerbox_window.h"

#include <windows.h>

#include <commctrl.h>

#include "app/FJeerbox.h"
#include "app/win32/dialog_paint.h"
#include "platform/win32/wide_text.h"

namespace jeerbox {
namespace {

// cmdInsult is the default button and cmdClose the cancel button: Enter
// and Escape reach them as IDOK and IDCANCEL.
constexpr int kInsult = IDOK;
constexpr int kClose = IDCANCEL;
constexpr int kAbout = 100;
constexpr int kCopy = 101;
constexpr int kText = 102;

constexpr DWORD kDialogStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | DS_MODALFRAME;

// The main window while it is up, for the message loop's dialog keys.
HWND gDialog = nullptr;

HWND AsWindow(void* handle) { return static_cast<HWND>(handle); }

}  // namespace

struct DialogProcedure {
  static INT_PTR CALLBACK Run(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
      SetWindowLongPtrW(dialog, GWLP_USERDATA, lParam);
      reinterpret_cast<JeerboxWindow*>(lParam)->mDialog = dialog;
    }
    auto* window = reinterpret_cast<JeerboxWindow*>(GetWindowLongPtrW(dialog, GWLP_USERDATA));
    return window ? window->OnMessage(message, wParam, lParam) : FALSE;
  }
};

JeerboxWindow::JeerboxWindow(FJeerbox& form, void* instance) : mForm(form), mInstance(instance) {
  INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
  InitCommonControlsEx(&controls);
  mPaint = std::make_unique<DialogPaint>(
      static_cast<HINSTANCE>(instance),
      L"Sponsored by: " + WideFromWindows1252(form.GetDeployment().sponsorHost));
  // An empty template: no controls, no menu, the default class, no title.
  struct {
    DLGTEMPLATE dialog;
    WORD menu, windowClass, title;
  } emptyTemplate{};
  emptyTemplate.dialog.style = kDialogStyle;
  CreateDialogIndirectParamW(static_cast<HINSTANCE>(instance), &emptyTemplate.dialog, nullptr,
                             &DialogProcedure::Run, reinterpret_cast<LPARAM>(this));
}

JeerboxWindow::~JeerboxWindow() {
  if (mDialog) DestroyWindow(AsWindow(mDialog));
}

void JeerboxWindow::BuildControls() {
  HWND dialog = AsWindow(mDialog);
  const DialogPaint& p = *mPaint;
  SetWindowTextW(dialog, WideFromWindows1252(mForm.GetDeployment().productDomain).c_str());
  SendMessageW(dialog, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(p.bigIcon));
  SendMessageW(dialog, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(p.smallIcon));
  auto make = [&](const wchar_t* kind, const wchar_t* text, DWORD style, int id, const Twips& place,
                  HFONT font) {
    const RECT r = p.Rect(place);
    HWND control =
        CreateWindowExW(0, kind, text, WS_CHILD | WS_VISIBLE | style, r.left, r.top, r.right - r.left,
                        r.bottom - r.top, dialog, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                        static_cast<HINSTANCE>(mInstance), nullptr);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return control;
  };
  cmdInsult = make(L"BUTTON", L"Insult me", WS_TABSTOP | BS_DEFPUSHBUTTON, kInsult, {3023, 3600, 1095, 375},
                   p.dialogFont);
  cmdAbout =
      make(L"BUTTON", L"About...", WS_TABSTOP | BS_PUSHBUTTON, kAbout, {4223, 3600, 1095, 375}, p.dialogFont);
  cmdClose =
      make(L"BUTTON", L"Close", WS_TABSTOP | BS_PUSHBUTTON, kClose, {5423, 3600, 1095, 375}, p.dialogFont);
  txtInsult = make(L"EDIT", L"", ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL, kText,
                   {263, 1320, 6135, 2055}, p.insultFont);
  cmdCopy = make(L"BUTTON", L"Copy", WS_TABSTOP | BS_PUSHBUTTON | WS_DISABLED, kCopy, {120, 3600, 855, 375},
                 p.dialogFont);
  SetInsultText("Click \"Insult me\" to generate an insult\r\n");

  HWND tip = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0,
                             dialog, nullptr, static_cast<HINSTANCE>(mInstance), nullptr);
  TOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = dialog;
  tool.uId = reinterpret_cast<UINT_PTR>(cmdCopy);
  tool.lpszText = const_cast<wchar_t*>(L"Copy insult to clipboard");
  SendMessageW(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));

  // The client area as laid out, the frame around it, centred in the work area.
  RECT frame = p.Rect(kClientArea);
  AdjustWindowRectEx(&frame, kDialogStyle, FALSE, static_cast<DWORD>(GetWindowLongPtrW(dialog, GWL_EXSTYLE)));
  RECT work{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  const int width = frame.right - frame.left, height = frame.bottom - frame.top;
  SetWindowPos(dialog, nullptr, work.left + (work.right - work.left - width) / 2,
               work.top + (work.bottom - work.top - height) / 2, width, height,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void JeerboxWindow::Show() {
  if (!mDialog) return;
  ShowWindow(AsWindow(mDialog), SW_SHOW);
  SetForegroundWindow(AsWindow(mDialog));
  SendMessageW(AsWindow(mDialog), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(cmdInsult), TRUE);
}

void JeerboxWindow::SetInsultText(const std::string& text) {
  mText = text;
  if (txtInsult) SetWindowTextW(AsWindow(txtInsult), WideFromWindows1252(text).c_str());
}

void JeerboxWindow::SetCopyEnabled(bool enabled) {
  if (cmdCopy) EnableWindow(AsWindow(cmdCopy), enabled);
}

// The form hears of every close first; a close asked for while one is
// under way is refused, and the one under way goes on.
void JeerboxWindow::Close() {
  if (!mDialog || mClosing) return;
  mClosing = true;
  const bool closing = mForm.WindowClosing();
  mClosing = false;
  if (closing && mDialog) DestroyWindow(AsWindow(mDialog));
}

void JeerboxWindow::OnCommand(int id) {
  switch (id) {
    case kInsult:
      mForm.cmdInsult_Click();
      break;
    case kAbout:
      mForm.cmdAbout_Click();
      break;
    case kClose:
      mForm.cmdClose_Click();
      break;  // the button, or Escape
    case kCopy:
      mForm.cmdCopy_Click();
      break;
    default:
      break;
  }
}

bool JeerboxWindow::OverBanner(intptr_t lParam) const {
  const POINT at{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
  const RECT banner = mPaint->Rect(kBannerPlace);
  return PtInRect(&banner, at) != 0;
}

intptr_t JeerboxWindow::OnMessage(unsigned message, uintptr_t wParam, intptr_t lParam) {
  HWND dialog = AsWindow(mDialog);
  switch (message) {
    case WM_INITDIALOG:
      gDialog = dialog;
      BuildControls();
      return FALSE;  // Show puts the focus on cmdInsult
    case WM_COMMAND:
      if (HIWORD(wParam) == BN_CLICKED) OnCommand(LOWORD(wParam));
      return TRUE;
    case WM_CLOSE:  // the close box, Alt+F4, the system menu
      Close();
      return TRUE;
    case WM_PAINT: {
      PAINTSTRUCT paint;
      HDC dc = BeginPaint(dialog, &paint);
      mPaint->Paint(dc);
      EndPaint(dialog, &paint);
      return TRUE;
    }
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORBTN:
      return reinterpret_cast<INT_PTR>(mPaint->white);
    case WM_CTLCOLORSTATIC:  // the read-only text box
      SetTextColor(reinterpret_cast<HDC>(wParam), kTeal);
      SetBkColor(reinterpret_cast<HDC>(wParam), RGB(255, 255, 255));
      return reinterpret_cast<INT_PTR>(mPaint->white);
    case WM_SETCURSOR: {
      POINT at;
      GetCursorPos(&at);
      ScreenToClient(dialog, &at);
      if (reinterpret_cast<HWND>(wParam) != dialog || LOWORD(lParam) != HTCLIENT ||
          !OverBanner(MAKELPARAM(at.x, at.y)))
        return FALSE;
      SetCursor(mPaint->hand);
      SetWindowLongPtrW(dialog, DWLP_MSGRESULT, TRUE);
      return TRUE;
    }
    case WM_LBUTTONDOWN:
      mBannerPressed = OverBanner(lParam);
      return TRUE;
    case WM_LBUTTONUP:
      if (mBannerPressed && OverBanner(lParam)) {
        mBannerPressed = false;
        mForm.imgSponsoredBy_Click();
      }
      mBannerPressed = false;
      return TRUE;
    case WM_NCDESTROY:
      if (gDialog == dialog) gDialog = nullptr;
      mDialog = cmdInsult = cmdAbout = cmdClose = txtInsult = cmdCopy = nullptr;
      return FALSE;
    default:
      return FALSE;
  }
}

int RunMessageLoop() {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (gDialog && IsDialogMessageW(gDialog, &message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

}  // namespace jeerbox
