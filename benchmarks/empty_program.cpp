// Does nothing, so that its run time is only the time that a process takes to start and end.
extern "C" int wmain() { return 0; }
