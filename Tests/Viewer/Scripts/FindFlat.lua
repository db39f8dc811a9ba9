-- Finds a flat under a price on some levels of the sample project, looks at it in the scene, and writes pictures of the way.

local function Listed()
	return Find("ListViewContainer"):GetNumItems()
end

Expect(Listed() == 262, "the sample project is not all there")

Click("FiltersButton")
Focus("Price/To")
Type("500k")
Key("Enter")
Focus("Level/From")
Type("3")
Key("Tab")
Type("5")
Key("Enter")
local Found = Listed()
Expect(Found > 0 and Found < 262, "no flat, or all of them: " .. Found)
Expect(Find("PassingText"):GetText() == Found .. " of 262 units", "the count says " .. Find("PassingText"):GetText())
Expect(Count("Chips/Label") == 2, "a chip for each of the two")

Focus("Status/Box#1")
Key("SpaceBar")
Expect(Listed() < Found, "not all of them can be had")
Click("Close")
Expect(Count("ActiveFilters/Label") == 3, "the list tells of the filters while their panel is closed")

Click("SortBox")
Click("text:Price")
Wait(2)
Picture("filtered.png")
Click(200, 320)
Wait(2)
Picture("found.png")
