#pragma once

// Gives every window of the program the program's icon; call it before the first window
// shows. On Windows the windows show the program file's icon already.
#ifdef _WIN32
inline void installWindowIcon() {}
#else
void installWindowIcon();
#endif
