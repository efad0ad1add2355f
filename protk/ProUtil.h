// Trail file, configuration options, directories and file choosers.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

extern ProError ProTrailfileCommentWrite(ProComment comment);
extern ProError ProConfigoptionGet(ProName option, ProPath option_value);
extern ProError ProConfigoptSet(ProName option, ProPath option_value);
extern ProError ProDirectoryCurrentGet(ProPath path);
extern ProError ProDirectoryChange(ProPath path);

typedef enum pro_file_list_opt {
  PRO_FILE_LIST_ALL = 0,
  PRO_FILE_LIST_LATEST = 1,
  PRO_FILE_LIST_ALL_SORTED = 2,
  PRO_FILE_LIST_LATEST_SORTED = 3,
  PRO_FILE_LIST_ALL_INST = 4,
  PRO_FILE_LIST_LATEST_INST = 5,
  PRO_FILE_LIST_ALL_SORTED_INST = 6,
  PRO_FILE_LIST_LATEST_SORTED_INST = 7
} ProFileListOpt;

// `filter` is a list such as "*.prt,*.txt"; `directory_path` null is the
// current directory. Both arrays are the caller's, made with ProArrayAlloc;
// full paths are appended to them. Subdirectories are listed whether they
// match or not.
extern ProError ProFilesList(ProPath directory_path, ProLine filter, ProFileListOpt listing_option,
                             ProPath** p_file_name_array, ProPath** p_subdir_name_array);

// The host's choosers; USER_ABORT when the user cancels. The shortcut
// arrays are ProArrays or null, as is `file_types` (null: all files).
extern ProError ProDirectoryChoose(ProName dialog_label, ProPath* shortcut_path_arr,
                                   ProName* shortcut_name_arr, ProPath default_path, ProPath r_selected_path);
extern ProError ProFileMdlfiletypeOpen(ProName dialog_label, ProMdlfileType* file_types,
                                       ProPath* shortcut_path_arr, ProName* shortcut_name_arr,
                                       ProPath default_path, ProMdlFileName pre_sel_file_name,
                                       ProPath r_selected_file);

// Splits a model file path into directory, name, extension and version;
// every output may be null.
extern ProError ProFileMdlnameParse(ProPath file_name_w_path, ProPath r_path, ProMdlName r_file_name,
                                    ProMdlExtension r_extension, int* r_version);

// Not in the public headers: the run-time hands the application's resource
// directory to the host with it.
extern ProError ProUIResourcepathStore(ProPath resource_path);

PRO_END_C_DECLS
