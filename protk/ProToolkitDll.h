// The toolkit client run-time: the two exported entry points the host calls,
// the two the application defines, and the run-time's own services.
#pragma once

#include "ProToolkit.h"

PRO_BEGIN_C_DECLS

// What the host hands the run-time at start. `size` and `abi_version` let the
// run-time refuse a host it was not built for.
typedef struct pro_toolkit_host_info {
  int size;
  int abi_version;
  const wchar_t* text_dir; /* the application's text directory */
  int language;            /* the host's language code */
  const char* version;
  const char* build;
  int argc;
  char** argv;
} ProToolkitHostInfo;

#define PRO_TOOLKIT_ABI_VERSION 8

/* Exported by the run-time inside the application library. */
extern int user_initialize_plus(const ProToolkitHostInfo* info, wchar_t err_buff[80]);
extern void user_terminate_plus(void);

/* Defined by the application. */
extern int user_initialize(int argc, char* argv[], char* version, char* build, wchar_t err_buff[80]);
extern void user_terminate(void);

/* The application's text directory as the host passed it; empty before start. */
extern ProError ProToolkitApplTextPathGet(ProPath text_path);

PRO_END_C_DECLS
