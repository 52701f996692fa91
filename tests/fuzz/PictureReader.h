/// The reader of the logo's picture file, for builds that know pictures.
#pragma once

#include "fuzz/ReaderDesk.h"

ReaderTarget PictureReader();
