-- Pictures of the project's files: each state, and each way to fit one into its area.

function Construct(self)
	for _, Name in ipairs({ "ToFit", "ToFill", "Fill", "Unscaled", "Sized" }) do
		self[Name]:SetImageFromData({ ImageName = "Courtyard", Address = "file:Gallery/Pictures/Courtyard.png" }, "EIRS_Medium")
	end
end
