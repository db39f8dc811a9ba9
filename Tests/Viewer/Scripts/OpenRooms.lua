-- Goes into the rooms of the flat that ConfigureAKitchen.lua configures, and leaves them as they come.

WaitFor("UnitList")
Click("SearchBox")
Type("Harbour 1.02")
WaitUntil(function() return Count("class:UnitRow") == 1 end)
Click("class:UnitRow")
WaitFor("Configure")
Click("Configure")
WaitFor("Configurator/text:Kitchen")
Wait(2)
