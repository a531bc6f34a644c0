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
from workbench import stop_after  # noqa: E402


def main(build_folder, *arguments):
    programs = build_folder / "bin"
    with Desktop() as desktop:
        host = Host(desktop, programs / "tonquill-hoststandin")
        program = desktop.start([programs / "tonquill", *arguments], log="tonquill.log")
        try:
            window = desktop.window(program, "^Tonquill$")
            host.wait_for("received")
            empty = window.picture_at_rest()
            host.send_document(sample_page())
            picture = window.picture_at_rest(other_than=empty)
        except (RuntimeError, TimeoutError) as error:
            sys.exit(f"{error}\n{desktop.log('tonquill.log')}")
    file = build_folder / "tonquill.png"
    picture.save(file)
    print(f"The program ran, with a sample page from a host. A picture of its window: {file}")


stop_after(120)
main(pathlib.Path(sys.argv[1]), *sys.argv[2:])
