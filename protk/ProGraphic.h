// Graphics of the host's window: the mouse.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

typedef enum pro_mouse_button {
  PRO_NO_BUTTON = 0,
  PRO_LEFT_BUTTON = 1,
  PRO_RIGHT_BUTTON = 2,
  PRO_MIDDLE_BUTTON = 4,
  PRO_LEFT_BUTTON_REL = 8,
  PRO_RIGHT_BUTTON_REL = 16,
  PRO_MIDDLE_BUTTON_REL = 32,
  PRO_MOUSE_MOVE = 64,
  PRO_LEFT_DOUBLECLICK = 512,
  PRO_ANY_BUTTON = 8191
} ProMouseButton;

// Waits for a press of the expected button (PRO_ANY_BUTTON: any) and gives
// the point under the mouse; PRO_TK_GENERAL_ERROR when the user aborts.
extern ProError ProMousePickGet(ProMouseButton expected_button, ProMouseButton* button_pressed,
                                ProPoint3d position);

PRO_END_C_DECLS
