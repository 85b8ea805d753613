// Does nothing: its run time is the time that every process takes to start and end.
extern "C" int wmain() { return 0; }
