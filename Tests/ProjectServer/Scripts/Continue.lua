-- Signs in with what is remembered, without the password, and out again.

WaitFor("text:Continue as Anna")
Click("Continue")
WaitFor("BadgeButton/text:Anna Ström", 1000)
Click("BadgeButton")
Wait(1)
Click("SignOut")
WaitFor("NameBox")
