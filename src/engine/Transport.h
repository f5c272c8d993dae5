// The transport: play, record, edit, and a host that starts and stops.
#pragma once

#include "engine/GrooveEngine.h"

namespace korvane {

// Any thread; done at once by who has the engine to itself, else at the start of the next chunk, in order.

void SetPlay(GrooveEngine& engine, bool on);
void SetRecord(GrooveEngine& engine, bool on);
/// Leaving edit mode drops at once what was marked for editing.
void SetEdit(GrooveEngine& engine, bool on);
/// The host's transport has started or stopped. A start always begins anew at the host's position.
void FollowHost(GrooveEngine& engine, bool running);

/// The modes as the switches show them and as buttons go by: those that all orders so far lead to. Any thread.
Modes ShownModes(const GrooveEngine& engine);

/// A groove begins to load: what it will stop is what has been ordered until now. The loader, one load at a time.
void BeginLoad(GrooveEngine& engine);

/// It was refused before it changed anything.
void ForgetLoad(GrooveEngine& engine);

// Who has the engine to itself.

/// The loaded groove stands; orders given since the load began count on it. The clock has the host's time.
void EndLoad(GrooveEngine& engine);
/// Orders of other threads wait.
bool OrdersWait(const GrooveEngine& engine);
/// Does what other threads have asked for. The clock has the host's time.
void ServeTransport(GrooveEngine& engine);
/// The same for what had been asked for before a groove began to load.
void ServeBeforeLoad(GrooveEngine& engine);

} // namespace korvane
