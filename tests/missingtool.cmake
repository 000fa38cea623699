# Stands in for a test's tool that was not installed when the build was configured.
message(FATAL_ERROR "${TOOL} is not installed: install ${PACKAGE} (scripts/deps.sh test)")
