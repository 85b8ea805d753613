int wmain(void) { return 0; }
