#include "forms/FormUnits.h"
