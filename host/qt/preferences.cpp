#include "host/qt/preferences.h"

std::int64_t ZOR_getStackSize() { return 33554432; }
int ZOR_getMdiMode() { return 0; }
int ZOR_getShowMaximized() { return 0; }
int ZOR_promptSaveOnExit() { return 1; }
int ZOR_getMainWindowWidth() { return 340; }
int ZOR_getMainWindowHeight() { return 700; }
int ZOR_getMdiTextWindowWidth() { return int(ZOR_getMainWindowWidth() * 0.75); }
int ZOR_getMdiTextWindowHeight() { return int(ZOR_getMainWindowHeight() * 0.75); }
int ZOR_autoSave() { return 0; }
int ZOR_closeOnProgramFinish() { return 1; }
// Debian's monospace font stands in for Monaco, which Linux does not ship.
const char* ZOR_defaultFontFamily() { return "DejaVu Sans Mono              "; }
int ZOR_defaultFontSize() { return 10; }
int ZOR_showDefaultOutputWindow() { return 1; }
