#include "tests/support/testing.h"
