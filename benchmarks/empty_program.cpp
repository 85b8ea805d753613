// What every start of a process costs.
extern "C" int wmain() { return 0; }
