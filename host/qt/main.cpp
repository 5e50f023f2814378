// The console program in a text window: the same engine, with its console
// in a window of its own.
#include "host/qt/bridge.h"

int main(int argc, char** argv) { return ZorWindowEnvironment(argc, argv); }
