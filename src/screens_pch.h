// Headers that nearly every screen source includes, compiled once.
#pragma once
#include <array>
#include <functional>
#include <optional>
#include <QtWidgets>
#include <vector>
