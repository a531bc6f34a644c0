"""Shows the program where there is no screen: on a virtual one, with a sample page from the
stand-in for the host. Leaves a picture of the window in the build folder."""

import pathlib
import sys

scripts = pathlib.Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(scripts.parent / "tests" / "e2e"))

from desktop import Desktop  # noqa: E402
from host import Host  # noqa: E402
from samplepage import sample_page  # noqa: E402
from workbench import stop_after, wait_until  # noqa: E402


def settled_picture(window):
    """A picture of the window when it has stopped changing."""
    seen = []

    def unchanged():
        seen.append(window.picture())
        return len(seen) > 10 and all(picture == seen[-1] for picture in seen[-10:])

    wait_until(unchanged, "the window comes to rest")
    return seen[-1]


def main(build_folder, *arguments):
    programs = build_folder / "bin"
    with Desktop() as desktop:
        host = Host(desktop, programs / "tonquill-hoststandin")
        program = desktop.start([programs / "tonquill", *arguments], log="tonquill.log")
        try:
            window = desktop.window(program, "^Tonquill$")
            host.wait_for("received")
            host.send_document(sample_page())
            picture = settled_picture(window)
        except RuntimeError as error:
            sys.exit(f"{error}\n{desktop.log('tonquill.log')}")
    file = build_folder / "tonquill.png"
    picture.save(file)
    print(f"The program ran, with a sample page from a host. A picture of its window: {file}")


stop_after(120)
main(pathlib.Path(sys.argv[1]), *sys.argv[2:])
