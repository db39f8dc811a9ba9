-- Signs in by name and password, and asks to be remembered. The password is checked in its own time, which the clock of a
-- headless run is far ahead of.

WaitFor("NameBox")
Wait(1)
Type("Anna")
Key("Tab")
Type("right-password")
Click("RememberBox")
Click("SignIn")
WaitFor("BadgeButton/text:Anna Ström", 1000)
