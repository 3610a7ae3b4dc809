// What nearly every test includes: compiled once.
#pragma once

#include <doctest/doctest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "fixture.h"
