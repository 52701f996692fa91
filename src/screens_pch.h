// Headers that nearly every screen source includes, compiled once.
#pragma once
#include <QtWidgets>
#include <array>
#include <functional>
#include <optional>
#include <vector>
