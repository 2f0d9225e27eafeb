// What nearly every test uses.
#pragma once

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/pdf_reader.h"
#include "support/program.h"
#include "support/report_reader.h"
#include "support/rows.h"
#include "support/variable.h"
