#include "LicenceGate.h"

LicenceGate::Status LicenceGate::status() const { return Status::unlocked; }
