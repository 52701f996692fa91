// Headers that nearly every rules source includes, compiled once.
#pragma once
#include <array>
#include <functional>
#include <optional>
#include <QByteArray>
#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>
