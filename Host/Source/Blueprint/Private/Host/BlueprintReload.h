#pragma once

namespace Host
{
	/**
	 * Takes the names from the classes of all widget blueprints, and what imported scripts defined from the scripts, so that both are read from
	 * their files when they are next asked for. The classes live on as long as something is made of them.
	 */
	void ForgetWidgetBlueprints();
}
