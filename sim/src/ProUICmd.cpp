// Host commands: actions with their access callbacks, icons and designations.
#include "ProUICmd.h"

#include "CodePage.h"
#include "FileLookup.h"
#include "Files.h"
#include "MessageFile.h"
#include "ToolkitCall.h"

#include <memory>

extern "C" ProError ProCmdActionAdd(char* action_name, uiCmdCmdActFn action_cb, uiCmdPriority priority,
                                    uiCmdAccessFn access_func, ProBoolean allow_in_non_active_window,
                                    ProBoolean allow_in_accessory_window, uiCmdCmdId* action_id) {
  sim::ToolkitCall call("ProCmdActionAdd", {action_name});
  if (call.Failed()) return call.Status();
  if (!action_name || !*action_name || !action_id) return PRO_TK_GENERAL_ERROR;
  sim::HostState& state = call.state();
  if (state.FindCommand(action_name)) return PRO_TK_E_FOUND;
  auto command = std::make_unique<sim::Command>();
  command->info = {action_name, priority, allow_in_non_active_window == PRO_B_TRUE,
                   allow_in_accessory_window == PRO_B_TRUE};
  command->action = action_cb;
  command->access = access_func;
  sim::Command* kept = call.host().Keep(std::move(command));
  state.commands.Add(kept);
  *action_id = kept;
  return PRO_TK_NO_ERROR;
}

// Looked up in the stored resource path, then in the application's resource
// directory.
extern "C" ProError ProCmdIconSet(uiCmdCmdId cmd_id, ProCmdItemIcon cmd_icon) {
  sim::ToolkitCall call("ProCmdIconSet", {sim::CommandRef{cmd_id}, cmd_icon});
  if (call.Failed()) return call.Status();
  sim::HostState& state = call.state();
  sim::Command* command = state.LiveCommand(cmd_id);
  if (!command || !cmd_icon || !*cmd_icon) return PRO_TK_BAD_INPUTS;
  std::vector<std::filesystem::path> dirs;
  if (!state.resourcePath.empty()) dirs.push_back(state.resourcePath);
  if (state.textPaths) dirs.push_back(platform::NativePath(state.textPaths->resource));
  for (const std::filesystem::path& dir : dirs) {
    if (auto icon = sim::FindFileNoCase(dir, platform::ToWide(cmd_icon))) {
      command->info.icon = *icon;
      return PRO_TK_NO_ERROR;
    }
  }
  return PRO_TK_E_NOT_FOUND;
}

extern "C" ProError ProCmdDesignate(uiCmdCmdId cmd_id, ProCmdItemLabel button_label,
                                    ProCmdLineHelp one_line_help, ProCmdDescription description,
                                    ProFileName msg_file) {
  sim::ToolkitCall call("ProCmdDesignate",
                        {sim::CommandRef{cmd_id}, button_label, one_line_help, description, msg_file});
  if (call.Failed()) return call.Status();
  sim::HostState& state = call.state();
  sim::Command* command = state.LiveCommand(cmd_id);
  if (!command) return PRO_TK_BAD_INPUTS;
  sim::MessageLookup texts[3];
  const char* keys[3] = {button_label, one_line_help, description};
  for (int i = 0; i < 3; ++i) {
    texts[i] = sim::LookupMenuText(state, msg_file, keys[i]);
    if (texts[i].status != PRO_TK_NO_ERROR) return texts[i].status;
  }
  command->info.designated = true;
  command->info.label = texts[0].text;
  command->info.help = texts[1].text;
  command->info.description = texts[2].text;
  return PRO_TK_NO_ERROR;
}
