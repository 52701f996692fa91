/// The program's own drawing, shipped inside the program file.
#pragma once

#include <QPixmap>

QPixmap LogoPicture();
