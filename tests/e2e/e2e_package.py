"""The Debian package: built with CPack, unpacked with dpkg -x into a clean folder, and
the installed program started under Xvfb from its command link, where its buttons start
the installed companion programs."""

import os
import subprocess
import sys
import tempfile

import e2e_companions

EXPECTED = [
    "usr/share/applications/vorkan-mac.desktop",
    "usr/share/metainfo/org.example.vorkan.mac.metainfo.xml",
    "usr/share/icons/hicolor/scalable/apps/vorkan-mac.svg",
    "usr/libexec/vorkan-mac/lumetra.app",
    "usr/libexec/vorkan-mac/pendulo.app",
    "usr/libexec/vorkan-mac/vorkan-mac",
]


def build_package(build_dir, out_dir):
    subprocess.run(["cpack", "-G", "DEB", "-B", out_dir,
                    "--config", os.path.join(build_dir, "CPackConfig.cmake")],
                   check=True, stdout=subprocess.DEVNULL)
    packages = [name for name in os.listdir(out_dir) if name.endswith(".deb")]
    assert len(packages) == 1, f"cpack made {packages}"
    return os.path.join(out_dir, packages[0])


def check_control(package):
    depends = subprocess.run(["dpkg-deb", "-f", package, "Depends"], check=True,
                             capture_output=True, text=True).stdout
    for needed in ("libqt6widgets6", "libqt6gui6", "libqt6core6", "qt6-qpa-plugins"):
        assert needed in depends, f"the package does not depend on {needed}: {depends}"


def main(build_dir):
    with tempfile.TemporaryDirectory() as work:
        package = build_package(build_dir, os.path.join(work, "out"))
        check_control(package)
        root = os.path.join(work, "root")
        subprocess.run(["dpkg", "-x", package, root], check=True)
        for path in EXPECTED:
            assert os.path.isfile(os.path.join(root, path)), f"{path} is not installed"
        command = os.path.join(root, "usr/bin/vorkan-mac")
        assert os.path.islink(command), "usr/bin/vorkan-mac is not a link"
        assert os.path.realpath(command) == os.path.join(root, EXPECTED[-1]) or \
            os.path.realpath(command) == os.path.realpath(os.path.join(root, EXPECTED[-1]))

        status = e2e_companions.main(command)
        assert status == 0, "the installed program did not start its companions"
    print("e2e_package: 1 passed, 0 failed")


if __name__ == "__main__":
    main(sys.argv[1])
