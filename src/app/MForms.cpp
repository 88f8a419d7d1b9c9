// The list of loaded forms and the main form's lifetime.
#include "app/MForms.h"

#include <map>

#include "app/FJeerbox.h"
#include "app/app_services.h"

namespace jeerbox {
namespace {

struct LoadedList {
  std::map<FormId, std::pair<std::string, std::function<void()>>> forms;
  FormId next = 1;
};

LoadedList& List() {
  static LoadedList list;
  return list;
}

std::unique_ptr<FJeerbox>& MainFormSlot() {
  static std::unique_ptr<FJeerbox> form;
  return form;
}

}  // namespace

FormId LoadForm(const std::string& name, std::function<void()> unload) {
  const FormId id = List().next++;
  List().forms[id] = {name, std::move(unload)};
  return id;
}

void ForgetForm(FormId id) { List().forms.erase(id); }

void UnloadForm(FormId id) {
  auto it = List().forms.find(id);
  if (it == List().forms.end()) return;
  std::function<void()> unload = std::move(it->second.second);
  List().forms.erase(it);
  if (unload) unload();
}

std::vector<FormId> LoadedForms() {
  std::vector<FormId> ids;
  for (const auto& entry : List().forms) ids.push_back(entry.first);
  return ids;
}

std::string FormName(FormId id) {
  auto it = List().forms.find(id);
  return it == List().forms.end() ? std::string() : it->second.first;
}

void LoadMainForm(std::unique_ptr<FJeerbox> form) {
  MainFormSlot() = std::move(form);
  FJeerbox* main = MainFormSlot().get();
  main->AttachView(Services().makeMainView(*main));
  const FormId id = LoadForm("FJeerbox", [main] { main->Unload(); });
  main->SetUnloadedHandler([id] { ForgetForm(id); });
}

void ShowMainForm() {
  FJeerbox* form = MainForm();
  form->Setup();
  form->Start();
}

FJeerbox* MainForm() { return MainFormSlot().get(); }

void ReleaseForms() {
  for (FormId id : LoadedForms()) {
    if (FormName(id) != "FJeerbox") UnloadForm(id);
  }
  List().forms.clear();
  MainFormSlot().reset();
}

}  // namespace jeerbox
