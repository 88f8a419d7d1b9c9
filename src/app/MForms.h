// The forms the process has loaded, and the hand-over to the main window.
// A form is loaded until it is unloaded, whoever still refers to it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace jeerbox {

class FJeerbox;

using FormId = int;

// Registers a loaded form; `unload` is what unloading it does.
FormId LoadForm(const std::string& name, std::function<void()> unload);
// Takes a form off the list without running its unload (it went by itself).
void ForgetForm(FormId id);
// Takes the form off the list, then runs its unload.
void UnloadForm(FormId id);
// The ids of the loaded forms, in the order they were loaded.
std::vector<FormId> LoadedForms();
std::string FormName(FormId id);  // "" for a form no longer loaded

// Makes `form` the main form, with its face from Services(); the form is
// loaded until its window goes.
void LoadMainForm(std::unique_ptr<FJeerbox> form);
// FJeerbox.Setup, then FJeerbox.Start. Needs a main form.
void ShowMainForm();
// The main form; null until LoadMainForm.
FJeerbox* MainForm();
// At the very end (after the event loop, or between tests): unloads the
// forms still loaded, then destroys the main form.
void ReleaseForms();

}  // namespace jeerbox
