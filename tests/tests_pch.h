// Headers that every test includes, compiled once.
#pragma once
#include <QtTest>
#include <QtWidgets>
