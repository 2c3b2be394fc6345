#pragma once

#include "base/IOWatchdog.h"
#include "timeline/Composition.h"
#include "playback/HostClock.h"

#include <QVideoFrame>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

// The decoding side of one player: demuxes and decodes its track on a
// thread the player owns, keeping a small queue of converted frames ahead of
// the clock. The player asks for seeks and takes frames through State; the
// worker answers on its thread and tells the player of news through the
// player's callback, which the player clears before it goes.
class DecodeWorker {
public:
    struct Entry {
        quint64 generation = 0;
        double time = 0;
        QVideoFrame frame; // invalid: no picture
        bool picture = false;
        // A key frame before a seek's target, shown while the exact frame
        // is decoded; never the answer to the seek.
        bool preview = false;
    };

    enum class News { ready, frames };

    // What the player and the worker share, under one mutex.
    struct State {
        std::mutex mutex;
        std::condition_variable_any changed;
        std::atomic<quint64> decoded{0};
        std::atomic<int> decodeDelayMs{0};
        // In a group the clock waits for the slowest camera, so no camera drops
        // or skips frames on its own.
        bool grouped = false;
        // The generation whose frames have all been queued: nothing more comes.
        quint64 endedGeneration = 0;
        // Called on the worker's thread with the mutex held; empty once the player goes.
        std::function<void(News)> notify;

        quint64 generation = 0;
        bool seekRequested = false;
        double seekTarget = 0;
        std::deque<Entry> queue;
        // Frames a seek took out of the queue; the worker may still use them.
        std::deque<Entry> salvage;

        // A copy of a lone player's clock, for dropping frames already late.
        bool playing = false;
        double anchorMedia = 0;
        double anchorHost = 0;
        float rate = 1.0f;

        double mediaNow() const
        {
            if (!playing)
                return -1e300;
            return anchorMedia + double(rate) * std::max(0.0, HostClock::now() - anchorHost);
        }
    };

    // Starts decoding track at once; its first read is the seek state asks for.
    DecodeWorker(std::shared_ptr<State> state, Composition::Track track, int decoderThreads);
    // Stops and joins the thread; see IOWatchdog::OwnedThread for a stuck read.
    ~DecodeWorker() = default;

    // Asks the thread to end now, so that going later costs the window's thread nothing.
    void requestStop() { thread_.requestStop(); }

    // Skipping ahead to a keyframe when decoding falls behind the clock; off
    // only to measure raw decoding speed.
    static void setCatchUpEnabled(bool enabled);
    // Threads not yet ended, stopped players' included: each holds its clip
    // open until it ends, so a drive can be let go only after.
    static int running();

private:
    IOWatchdog::OwnedThread thread_;
};
