#include "fault.h"

const broken::fault broken::deviation = broken::fault::BUNDLE_FAULT;
