#pragma once

// What the tests of the engine share. Included by tests only, hence the usings.

#include "tests/support/probes.h"
#include "tests/support/scans.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QTest>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;
