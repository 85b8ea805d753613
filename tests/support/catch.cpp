#include "tests/support/catch.h"
