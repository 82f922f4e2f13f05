#include "TestHeaders.h"
