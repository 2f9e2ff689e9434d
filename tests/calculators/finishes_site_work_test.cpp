#include "calculators/panel_probe.h"
