// Does nothing: shows how long any process takes to start.
extern "C" int wmain() { return 0; }
