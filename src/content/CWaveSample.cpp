// Decoded audio: what both readers share.
#include "content/CWaveSample.h"

namespace korvane {

void CWaveSample::Clear()
{
    for (auto& data : channelData) data.reset();
    numChannels = numFrames = loopStart = loopEnd = 0;
}

} // namespace korvane
