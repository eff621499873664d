/* What the library in Server.cpp needs beside itself. */
__declspec(dllexport) int CompanionVersion(void);
int CompanionVersion(void) { return 1; }
