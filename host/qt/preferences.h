// The host's compiled-in preferences: there is no settings file.
#pragma once

#include <cstdint>

std::int64_t ZOR_getStackSize();
int ZOR_getMdiMode();
int ZOR_getShowMaximized();
int ZOR_promptSaveOnExit();
int ZOR_getMainWindowWidth();
int ZOR_getMainWindowHeight();
int ZOR_getMdiTextWindowWidth();
int ZOR_getMdiTextWindowHeight();
int ZOR_autoSave();
int ZOR_closeOnProgramFinish();
// The family name, blank padded to its field of 30 characters.
const char* ZOR_defaultFontFamily();
int ZOR_defaultFontSize();
int ZOR_showDefaultOutputWindow();
