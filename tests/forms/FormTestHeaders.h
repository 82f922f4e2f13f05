#pragma once

// What most tests of the forms read, precompiled.

#include <gtest/gtest.h>

#include <QTest>

#include "../../cmake/FormHeaders.h"
