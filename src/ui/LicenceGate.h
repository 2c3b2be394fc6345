#pragma once

// The gate in front of scanning the user's own drives. Sample footage never
// passes through it. The licence service behind it is not built yet, so the
// gate answers `unlocked`; the drive picker is the one place that asks.
class LicenceGate {
public:
    enum class Status { unlocked, locked };

    virtual ~LicenceGate() = default;
    virtual Status status() const;
};
