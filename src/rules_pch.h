// Headers that nearly every rules source includes, compiled once.
#pragma once
#include <QByteArray>
#include <QDate>
#include <QString>
#include <QStringList>
#include <array>
#include <functional>
#include <optional>
#include <vector>
