# Sourced by run.sh and test.sh: installs the missing packages of packages.txt, asking once.

missing_packages()
{
	local Package
	while read -r Package; do
		case "$Package" in ''|'#'*) continue;; esac
		[ "$(dpkg-query -W -f '${db:Status-Status}' "$Package" 2>/dev/null)" = installed ] || printf '%s ' "$Package"
	done < packages.txt
}

install_missing_packages()
{
	local Missing Answer Root=
	Missing=$(missing_packages)
	[ -n "$Missing" ] || return 0
	echo "These packages are missing: $Missing"
	if [ "$(id -u)" -ne 0 ]; then
		Root=sudo
	fi
	# Only a person at a terminal is asked; a script that runs this wants it done.
	if [ -t 0 ] && [ -z "${CI:-}" ]; then
		read -r -p "Install them now? [Y/n] " Answer
		case "$Answer" in [nN]*) echo "Cannot build without them." >&2; return 1;; esac
	fi
	$Root apt-get update -qq
	# shellcheck disable=SC2086
	DEBIAN_FRONTEND=noninteractive $Root apt-get install -y -qq --no-install-recommends $Missing > /dev/null
}
