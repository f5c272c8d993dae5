-- Makes an Ardour session with Korvane on one track, soloed on its selected channel, that channel's level automated.
-- arguments: session folder (its name becomes the session's); length in seconds; depth in dB: the level falls from
-- 0 dB to this far below in the first half and comes back in the second
-- Prints how many parameters Ardour offers for automation.
local folder, seconds, depth = arg[1], tonumber(arg[2]), tonumber(arg[3])
local rate = 48000

local function at(second) return Temporal.timepos_t(math.floor(second * rate)) end
local function level(dB) return (dB + 60) / 80 end

AudioEngine:set_backend("None (Dummy)", "", "")
local session = assert(create_session(folder, "session", rate), "no session in " .. folder)
local info = ARDOUR.LuaAPI.new_plugin_info("Korvane", ARDOUR.PluginType.LXVST)
assert(not info:isnil(), "Ardour has no plug-in named Korvane")

local midi, stereo = ARDOUR.ChanCount(ARDOUR.DataType("midi"), 1), ARDOUR.ChanCount(ARDOUR.DataType("audio"), 2)
local track = session:new_midi_track(midi, stereo, true, info, nil, nil, 1, "Korvane",
                                     ARDOUR.PresentationInfo.max_order, ARDOUR.TrackMode.Normal, true):front()
for side = 0, 1 do  -- Ardour connects new tracks in the background
    while not track:output():audio(side):connected() do ARDOUR.LuaAPI.usleep(10000) end
end
local processor = track:nth_plugin(0)
assert(not processor:isnil(), "Ardour could not load Korvane")
local plugin, automatable = processor:to_insert():plugin(0), processor:to_automatable()
print("offered " .. automatable:all_automatable_params():size())

local function draw(name, points)
    for n = 0, plugin:parameter_count() - 1 do
        if plugin:parameter_label(n) == name then
            local _, list = ARDOUR.LuaAPI.plugin_automation(processor, n)
            for _, point in ipairs(points) do list:add(at(point[1]), point[2], false, true) end
            local parameter = Evoral.Parameter(ARDOUR.AutomationType.PluginAutomation, 0, n)
            automatable:automation_control(parameter, false):set_automation_state(ARDOUR.AutoState.Play)
            return
        end
    end
    error("no parameter named " .. name)
end

draw("Solo Currrent Track", {{0, 1}})
draw("CHN: Mix Level", {{0, level(0)}, {seconds / 2, level(-depth)}, {seconds, level(0)}})
session:locations():add_range(at(0), at(seconds))
session:save_state("", false, false, false, false, false)
close_session()
