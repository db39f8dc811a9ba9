-- What people read of users and of signing in.

local Errors = {
	InvalidCredentials = "The user name or the password is not right.",
	SessionEnded = "The remembered sign-in has run out. Please enter the password.",
	NoAnswer = "The service does not answer. Check the connection and try again.",
	BadAnswer = "The service gave an answer that is of no use. Try again later.",
	ServerFault = "The service has a fault. Try again later.",
}

local function Wait(Seconds)
	if Seconds <= 0 then
		return "in a while"
	elseif Seconds < 90 then
		return "in " .. Seconds .. (Seconds == 1 and " second" or " seconds")
	end
	return "in " .. math.ceil(Seconds / 60) .. " minutes"
end

-- Why a request failed; empty for one that was given up on demand.
function Failure(Info)
	if Info.Error == "TooManyAttempts" then
		return "Too many attempts. Try again " .. Wait(Info.RetryAfterSeconds) .. "."
	end
	return Errors[Info.Error] or ""
end

-- The first letters of the first and the last word.
function Initials(Name)
	local Letters = {}
	for Letter in (" " .. Name):gmatch("[%s_.%-]([^%s_.%-\128-\191][\128-\191]*)") do
		Letters[#Letters + 1] = Letter
	end
	local First, Last = Letters[1] or "?", #Letters > 1 and Letters[#Letters] or ""
	return (First .. Last):upper()
end
