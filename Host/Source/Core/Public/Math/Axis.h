#pragma once

/** An axis of space. */
namespace EAxis
{
	enum Type
	{
		None,
		X,
		Y,
		Z
	};
}
