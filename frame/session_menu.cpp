#include "frame/session_menu.h"

#include <array>

#include <filesystem>
#include <system_error>

#include "toolkit/form.h"
#include "toolkit/host.h"
#include "toolkit/program.h"

namespace vrask {

void openHelp(Form& form) {
  std::error_code error;
  std::filesystem::path page = std::filesystem::absolute(kHelpFile, error);
  bool opened =
      !error && std::filesystem::exists(page, error) && form.host().openDocument(page.string());
  if (!opened) form.MsgBox("Vrask zorvex help.htm was not found in program directory.", "No help");
}

void addHelpEntry(Form& form, const std::string& name, const std::string& parentMenu,
                  const std::string& caption) {
  form.addMenu(name, parentMenu, caption).Shortcut = "F1";
  form.handle(name + "_Click", [&form] { openHelp(form); });
}

void addAboutEntry(Form& form, const std::string& name, const std::string& parentMenu,
                   const std::string& caption) {
  form.addMenu(name, parentMenu, caption);
  form.handle(name + "_Click", [&form] { form.program().showOver("AboutBox"); });
}

void addExitEntry(Form& form, const std::string& parentMenu, const std::string& caption) {
  form.addMenu("ex", parentMenu, caption).Shortcut = "Ctrl+Q";
  form.handle("ex_Click", [&form] { form.End(); });
}

void addOnlineEntries(Form& form, const std::string& parentMenu) {
  auto notice = [&form] {
    form.MsgBox(
        "Online play is not available in this version.\n\n"
        "To play a friend at a distance, open the keypad on both computers and read your "
        "moves to each other over the phone, a chat or text messages: the number of each "
        "move shows as \"Last move\".",
        "Online play");
  };
  form.addMenu("setserv", parentMenu, "Host a game (listen for connections)");
  form.handle("setserv_Click", notice);
  form.addMenu("setclient", parentMenu, "Join a game (connect to other computer)");
  form.handle("setclient_Click", notice);
}

ElementArray& addPlayerEntries(Form& form, const std::string& parentMenu) {
  static constexpr std::array<const char*, 4> kCaptions{
      "1 player verus the computer", "2 Players", "3 Players", "2 Players versus the computer"};
  ElementArray& ip = form.addMenuArray("ip", parentMenu, 0, 3);
  for (Element& entry : ip) {
    entry.Caption = kCaptions.at(static_cast<size_t>(entry.index));
    entry.Visible = entry.index <= 1;
  }
  ip[0].Checked = true;
  return ip;
}

ElementArray& addWorldEntries(Form& form, const std::string& parentMenu) {
  ElementArray& ver = form.addMenuArray("ver", parentMenu, 1, 2);
  ver[1].Caption = "Flatland";
  ver[2].Caption = "Bubbleland";
  ver[1].Checked = true;
  form.addMenu("ksep", parentMenu, "-");
  return ver;
}

void addHelpAboutExit(Form& form) {
  form.addMenu("hlp", "", "Help");
  addHelpEntry(form, "rh", "hlp");
  addAboutEntry(form, "abt", "hlp");
  addExitEntry(form, "");
}

}  // namespace vrask
