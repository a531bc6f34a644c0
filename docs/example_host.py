"""A host for Tonquill: keeps the document in the file that it is given, with undo and redo."""
import os, pathlib, re, select, socket, sys, time

RECORD = re.compile("tonquill_textblock_begin.*?\ntonquill_textblock_end\n|[^\n]*\n", re.DOTALL)
file = pathlib.Path(sys.argv[1])
states = [file.read_text("latin-1") if file.exists() else "tonquill_pagecount 1\n"]
now = 0  # which state of the document is on the page

def send(payload):
    program.sendall(b"tw2tonquill " + payload.encode("latin-1"))
    time.sleep(0.5)  # or the next message would be taken for a part of this one

def show(document):
    """Puts a document on the page: records with "|" between them, the one at the back first."""
    records = RECORD.findall(document.replace("|", "\xa6"))[:0:-1]
    send("|".join(records).replace("\ntonquill_textblock_end", "tonquill_textblock_end"))

def receive(message):
    global now
    if message in ("command:undo", "command:redo"):
        wanted = now + (1 if message == "command:redo" else -1)
        now = min(max(wanted, 0), len(states) - 1)
        show(states[now]) if now == wanted else send("state:nothingto" + message[-4:])
    elif message.startswith("tonquill_pagecount") and message != states[now]:
        now += 1
        states[now:] = [message]
    file.write_text(states[now], "latin-1")

os.umask(0o177)  # the socket is for this user only
server = socket.socket(socket.AF_UNIX)
server.bind(os.path.join(os.environ.get("TMPDIR", "/tmp"), "trackwrightqt"))
server.listen()
program = server.accept()[0]
program.recv(1 << 16)  # the program's own document, still empty: ours takes its place
show(states[now])
while data := program.recv(1 << 16):
    while select.select([program], [], [], 0.2)[0] and (more := program.recv(1 << 16)):
        data += more  # until it falls silent
    for message in data.decode("latin-1").split("tonquill2tw ")[1:]:
        receive(message)
