// Host commands: actions with their access callbacks, icons and designations.
#pragma once

#include "ProToolkit.h"

PRO_BEGIN_C_DECLS

typedef void* uiCmdCmdId;
typedef void* uiCmdAccessId;

typedef enum {
  ACCESS_REMOVE = -1,
  ACCESS_INVISIBLE = 0,
  ACCESS_UNAVAILABLE = 1,
  ACCESS_DISALLOW = 2,
  ACCESS_AVAILABLE = 3
} uiCmdAccessState;

typedef enum { MODE_BLIND = 0, MODE_ERROR_MSG_ALLOWED = 1 } uiCmdAccessMode;

typedef int uiCmdPriority;
#define uiCmdPrioDefault 0
#define uiProeImmediate 2
#define uiProeAsynch 3
#define uiProe2ndImmediate 5
#define uiProe3rdImmediate 6
#define uiProeSpinImmediate 7
#define uiCmdNoPriority 999

typedef enum {
  UI_CMD_VAL_NONE = 0,
  UI_CMD_VAL_INT = 1,
  UI_CMD_VAL_BOOL = 2,
  UI_CMD_VAL_DOUBLE = 3,
  UI_CMD_VAL_STRING = 4,
  UI_CMD_VAL_WSTRING = 5,
  UI_CMD_VAL_STRING_ARRAY = 6
} uiCmdValueType;

typedef struct {
  uiCmdValueType type;
  union {
    int i_val;
    int l_val;
    struct {
      double val;
      int n_digits;
      int denominator;
    } d_val;
    wchar_t* p_wsval;
    char* p_sval;
    char** p_sval_array;
  } value;
} uiCmdValue;

typedef int (*uiCmdCmdActFn)(uiCmdCmdId command, uiCmdValue* p_value, void* p_push_command_data);
typedef uiCmdAccessState (*uiCmdAccessFn)(uiCmdAccessMode access_mode);

typedef char ProCmdItemName[PRO_NAME_SIZE];
typedef char ProCmdItemLabel[PRO_LINE_SIZE];
typedef char ProCmdItemIcon[PRO_LINE_SIZE];
typedef char ProCmdLineHelp[PRO_LINE_SIZE];
typedef char ProCmdDescription[PRO_LINE_SIZE];

extern ProError ProCmdActionAdd(char* action_name, uiCmdCmdActFn action_cb, uiCmdPriority priority,
                                uiCmdAccessFn access_func, ProBoolean allow_in_non_active_window,
                                ProBoolean allow_in_accessory_window, uiCmdCmdId* action_id);
extern ProError ProCmdIconSet(uiCmdCmdId cmd_id, ProCmdItemIcon cmd_icon);
extern ProError ProCmdDesignate(uiCmdCmdId cmd_id, ProCmdItemLabel button_label, ProCmdLineHelp one_line_help,
                                ProCmdDescription description, ProFileName msg_file);

PRO_END_C_DECLS
