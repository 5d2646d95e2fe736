#include "platform/controls.h"

MainWindowControls frmQuibsMain;
