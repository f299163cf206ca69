<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CommandArea</name>
    <message>
        <source>  Command</source>
        <translation>  Befehle</translation>
    </message>
    <message>
        <source>Load Command</source>
        <translation>Befehle laden</translation>
    </message>
    <message>
        <source>Save Command</source>
        <translation>Befehle speichern</translation>
    </message>
    <message>
        <source>Clear Command</source>
        <translation>Befehle löschen</translation>
    </message>
</context>
<context>
    <name>CommandTable</name>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>CMD</source>
        <translation>CMD</translation>
    </message>
    <message>
        <source>Addr</source>
        <translation>Adr.</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>CRC</source>
        <translation>CRC</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Send.</translation>
    </message>
    <message>
        <source>DataType</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>OriginalData</source>
        <translation>Originaldaten</translation>
    </message>
    <message>
        <source>The command table is full: rows can be inserted up to row %1.</source>
        <translation>Die Befehlstabelle ist voll: Einfügen geht bis Zeile %1.</translation>
    </message>
    <message>
        <source>Expectations</source>
        <translation>Erwartungen</translation>
    </message>
</context>
<context>
    <name>Dialog</name>
    <message>
        <source>Uart</source>
        <translation>Uart</translation>
    </message>
    <message>
        <source>HID</source>
        <translation>HID</translation>
    </message>
    <message>
        <source>Clear Message</source>
        <translation>Meldungen löschen</translation>
    </message>
    <message>
        <source>Save Message</source>
        <translation>Meldungen speichern</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>DirectEditor</name>
    <message>
        <source>edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>CMD:</source>
        <translation>CMD:</translation>
    </message>
    <message>
        <source>Addr:</source>
        <translation>Adr.:</translation>
    </message>
    <message>
        <source>Data Type</source>
        <translation>Datentyp</translation>
    </message>
    <message>
        <source>Data:</source>
        <translation>Daten:</translation>
    </message>
    <message>
        <source>Hex:</source>
        <translation>Hex:</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Select command txt files</source>
        <translation>Befehlsdatei (txt) wählen</translation>
    </message>
    <message>
        <source>Commands saved: %1</source>
        <translation>Befehle gespeichert: %1</translation>
    </message>
    <message>
        <source>Save command txt files</source>
        <translation>Meldungen als txt-Datei speichern</translation>
    </message>
    <message>
        <source>file(*.txt)</source>
        <translation>Datei(*.txt)</translation>
    </message>
    <message>
        <source>Messages saved: %1</source>
        <translation>Meldungen gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>Of %1 files that were dropped, none was loaded: drop one.</source>
        <translation>Von %1 abgelegten Dateien wurde keine geladen: Bitte nur eine ablegen.</translation>
    </message>
    <message>
        <source>Not loaded, as it is no file of this computer: %1</source>
        <translation>Nicht geladen, da keine Datei dieses Rechners: %1</translation>
    </message>
    <message>
        <source>Not loaded, as it is no .txt file: %1</source>
        <translation>Nicht geladen, da keine .txt-Datei: %1</translation>
    </message>
</context>
<context>
    <name>FileEntrances</name>
    <message>
        <source>Not loaded, as the loop is running.</source>
        <translation>Nicht geladen, da die Schleife läuft.</translation>
    </message>
</context>
<context>
    <name>HeaderField</name>
    <message>
        <source>No start bytes: write two, as in 0x5A,0xA5. Until then frames begin with A5 5A.</source>
        <translation>Keine Startbytes: Bitte zwei angeben, etwa 0x5A,0xA5. Bis dahin beginnen Frames mit A5 5A.</translation>
    </message>
</context>
<context>
    <name>HelpKey</name>
    <message>
        <source>The guide is not installed. It would be here: %1</source>
        <translation>Die Anleitung ist nicht installiert. Sie läge hier: %1</translation>
    </message>
    <message>
        <source>Nothing here opens the guide. It is here: %1</source>
        <translation>Hier öffnet nichts die Anleitung. Sie liegt hier: %1</translation>
    </message>
</context>
<context>
    <name>HidTab</name>
    <message>
        <source>Device:</source>
        <translation>Gerät:</translation>
    </message>
    <message>
        <source>Report ID:</source>
        <translation>Report-ID:</translation>
    </message>
    <message>
        <source>CMD Header:</source>
        <translation>CMD-Kopf:</translation>
    </message>
    <message>
        <source>CRC Enable:</source>
        <translation>CRC an:</translation>
    </message>
    <message>
        <source>CRC Enable</source>
        <translation>CRC einschalten</translation>
    </message>
    <message>
        <source>Open HID Device</source>
        <translation>HID-Gerät öffnen</translation>
    </message>
    <message>
        <source>Send selected items</source>
        <translation>Ausgewählte senden</translation>
    </message>
    <message>
        <source>No device of a type that is listed in hidDeviceID.ini is attached.

The header that counts is that of the &quot;Uart&quot; tab, for HID too.</source>
        <translation>Kein Gerät eines Typs angeschlossen, der in hidDeviceID.ini steht.

Es gilt der CMD-Kopf des Reiters „Uart“, auch für HID.</translation>
    </message>
    <message>
        <source>No device, see %1</source>
        <translation>Kein Gerät, siehe %1</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Verbunden...</translation>
    </message>
</context>
<context>
    <name>LinkStatus</name>
    <message>
        <source>The connection to %1 was lost and is back.</source>
        <translation>Die Verbindung zu %1 war abgebrochen und ist wieder da.</translation>
    </message>
    <message>
        <source>%1. It is opened again when it is back.</source>
        <translation>%1. Ist das Gerät wieder da, wird es erneut geöffnet.</translation>
    </message>
</context>
<context>
    <name>ListFiles</name>
    <message>
        <source>A command list was not saved when the program ended.</source>
        <translation>Eine Befehlsliste war beim Programmende nicht gespeichert.</translation>
    </message>
    <message>
        <source>Load it...</source>
        <translation>Laden...</translation>
    </message>
</context>
<context>
    <name>ListUndo</name>
    <message>
        <source>rows %1 to %2</source>
        <translation>Zeilen %1 bis %2</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>another list</source>
        <translation>andere Liste</translation>
    </message>
    <message>
        <source>%1 inserted</source>
        <translation>%1 eingefügt</translation>
    </message>
    <message>
        <source>%1 deleted</source>
        <translation>%1 gelöscht</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Rückgängig: %1.</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>Wiederholt: %1.</translation>
    </message>
    <message>
        <source>The list can&apos;t be exchanged while the loop runs.</source>
        <translation>Die Liste lässt sich nicht tauschen, solange die Schleife läuft.</translation>
    </message>
</context>
<context>
    <name>LogCellDelegate</name>
    <message>
        <source>The CRC does not fit: %1 expected.</source>
        <translation>Die CRC passt nicht: %1 erwartet.</translation>
    </message>
</context>
<context>
    <name>LoopArea</name>
    <message>
        <source>Interval Time:</source>
        <translation>Intervall:</translation>
    </message>
    <message>
        <source>Cycle Delay:</source>
        <translation>Zyklus:</translation>
    </message>
    <message>
        <source>Repeat:</source>
        <translation>Anzahl:</translation>
    </message>
    <message>
        <source>How many passes the loop makes; empty: until it is stopped</source>
        <translation>Wie viele Durchläufe die Schleife macht; leer: bis sie angehalten wird</translation>
    </message>
    <message>
        <source>endless</source>
        <translation>endlos</translation>
    </message>
    <message>
        <source>Auto Send</source>
        <translation>Autom. senden</translation>
    </message>
    <message>
        <source>pass %1</source>
        <translation>Lauf %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Sending...</source>
        <translation>Sendet...</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
</context>
<context>
    <name>MessageArea</name>
    <message>
        <source>  Message</source>
        <translation>  Meldungen</translation>
    </message>
    <message>
        <source>Text, bytes as hexadecimal digits, tx, rx, note; all of them must match</source>
        <translation>Text, Bytes als Hexziffern, tx, rx, note; alles muss zutreffen</translation>
    </message>
    <message>
        <source>Find in the message log</source>
        <translation>Im Protokoll suchen</translation>
    </message>
    <message>
        <source>Find text, bytes, tx, rx, note</source>
        <translation>Text, Bytes, tx, rx, note</translation>
    </message>
    <message>
        <source>New rows are not scrolled to. Scroll to the end to follow them again.</source>
        <translation>Neue Zeilen werden nicht angesteuert. Ans Ende rollen, um ihnen wieder zu folgen.</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Steht</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 of 1 row</source>
        <translation>%1 von 1 Zeile</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 von %2 Zeilen</translation>
    </message>
</context>
<context>
    <name>MessageLog</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Kopf</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>CMD</source>
        <translation>CMD</translation>
    </message>
    <message>
        <source>Addr</source>
        <translation>Adr.</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>CRC</source>
        <translation>CRC</translation>
    </message>
    <message>
        <source>The log was full and began anew at %1; the %2 rows before are gone.</source>
        <translation>Das Protokoll war voll und begann um %1 neu; die %2 Zeilen davor sind weg.</translation>
    </message>
    <message>
        <source>A recording goes on in %1.</source>
        <translation>Eine Aufzeichnung läuft weiter in %1.</translation>
    </message>
</context>
<context>
    <name>MessageMenu</name>
    <message>
        <source>&amp;Go to its command</source>
        <translation>&amp;Gehe zum Befehl</translation>
    </message>
    <message>
        <source>Copy &amp;rows</source>
        <translation>&amp;Zeilen kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;data</source>
        <translation>&amp;Daten kopieren</translation>
    </message>
    <message>
        <source>Copy data as &amp;text</source>
        <translation>Daten als &amp;Text kopieren</translation>
    </message>
    <message>
        <source>Copy data as &amp;C array</source>
        <translation>Daten als &amp;C-Array kopieren</translation>
    </message>
    <message>
        <source>Copy data as &amp;Python bytes</source>
        <translation>Daten als &amp;Python-Bytes kopieren</translation>
    </message>
    <message>
        <source>T&amp;ime</source>
        <translation>Ze&amp;it</translation>
    </message>
    <message>
        <source>Since the &amp;row before</source>
        <translation>Seit der &amp;Zeile davor</translation>
    </message>
    <message>
        <source>Of the &amp;day</source>
        <translation>&amp;Tageszeit</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Nichts</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen…</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Open fail</source>
        <translation>Öffnen fehlgeschlagen</translation>
    </message>
    <message>
        <source>the recording can&apos;t be read</source>
        <translation>die Aufzeichnung ist nicht lesbar</translation>
    </message>
    <message>
        <source>Read fail,please check the path!</source>
        <translation>Lesen fehlgeschlagen, bitte den Pfad prüfen!</translation>
    </message>
    <message>
        <source>The file is too large for a command list!</source>
        <translation>Die Datei ist zu groß für eine Befehlsliste!</translation>
    </message>
    <message>
        <source>The file has more than %1 commands!</source>
        <translation>Die Datei hat mehr als %1 Befehle!</translation>
    </message>
    <message>
        <source>Input Register:Invalid format!</source>
        <translation>Eingaberegister: Ungültiges Format!</translation>
    </message>
    <message>
        <source>Save the file failed</source>
        <translation>Speichern der Datei fehlgeschlagen</translation>
    </message>
    <message>
        <source>The hardware monitoring registration failed, and the hardware could not be identified!</source>
        <translation>Die Hardwareüberwachung ließ sich nicht anmelden, die Hardware wird nicht erkannt!</translation>
    </message>
    <message>
        <source>1 event</source>
        <translation>1 Ereignis</translation>
    </message>
    <message>
        <source>%1 events</source>
        <translation>%1 Ereignisse</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Angehalten: %1</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Aufgezeichnet</translation>
    </message>
    <message>
        <source>%1 dropped</source>
        <translation>%1 verworfen</translation>
    </message>
    <message>
        <source>The recording %1 has stopped: %2.</source>
        <translation>Die Aufzeichnung %1 hat angehalten: %2.</translation>
    </message>
    <message>
        <source>%1 was not exported: %2.</source>
        <translation>%1 wurde nicht exportiert: %2.</translation>
    </message>
    <message>
        <source>%1 exported to %2.</source>
        <translation>%1 exportiert nach %2.</translation>
    </message>
    <message>
        <source>The recording was cut off within its last event.</source>
        <translation>Die Aufzeichnung bricht in ihrem letzten Ereignis ab.</translation>
    </message>
    <message>
        <source>%1 has no bytes for: </source>
        <translation>%1 hat keine Bytes für: </translation>
    </message>
    <message>
        <source>This system has no %1 codec. Not written: </source>
        <translation>Dieses System hat keinen Codec für %1. Nicht geschrieben: </translation>
    </message>
    <message>
        <source>&lt;br&gt;&quot;?&quot; is written in their place.</source>
        <translation>&lt;br&gt;An ihrer Stelle steht „?“.</translation>
    </message>
    <message>
        <source>&lt;br&gt;String is over wordNumber!</source>
        <translation>&lt;br&gt;Der String ist länger als die Wortzahl!</translation>
    </message>
    <message>
        <source>A digit is missing: each byte has two.</source>
        <translation>Eine Ziffer fehlt: Jedes Byte hat zwei.</translation>
    </message>
    <message>
        <source>Not a hexadecimal number.</source>
        <translation>Keine Hexadezimalzahl.</translation>
    </message>
    <message>
        <source>Not a number of milliseconds.</source>
        <translation>Keine Zahl von Millisekunden.</translation>
    </message>
    <message>
        <source>Keep at least one line!</source>
        <translation>Mindestens eine Zeile muss bleiben!</translation>
    </message>
    <message>
        <source>Has reached the top!</source>
        <translation>Schon ganz oben!</translation>
    </message>
    <message>
        <source>Has reached the bottom!</source>
        <translation>Schon ganz unten!</translation>
    </message>
    <message>
        <source>edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>clone</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>select none</source>
        <translation>Keine auswählen</translation>
    </message>
    <message>
        <source>there are more cells than columns.</source>
        <translation>mehr Zellen als Spalten.</translation>
    </message>
    <message>
        <source>neither &quot;select&quot; nor &quot;unselect&quot;.</source>
        <translation>weder „select“ noch „unselect“.</translation>
    </message>
    <message>
        <source>no expectation lines.</source>
        <translation>keine Erwartungszeilen.</translation>
    </message>
    <message>
        <source>Row %1, %2</source>
        <translation>Zeile %1, %2</translation>
    </message>
    <message>
        <source>There is more text than a command list can have.</source>
        <translation>Das ist mehr Text, als eine Befehlsliste fasst.</translation>
    </message>
    <message>
        <source>a quote is not closed.</source>
        <translation>ein Anführungszeichen fehlt.</translation>
    </message>
    <message>
        <source>There are no rows to paste.</source>
        <translation>Es gibt keine Zeilen zum Einfügen.</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>nothing more expected, got %1</source>
        <translation>nichts mehr erwartet, %1 erhalten</translation>
    </message>
    <message>
        <source>%1 is forbidden, got %2</source>
        <translation>%1 ist verboten, %2 erhalten</translation>
    </message>
    <message>
        <source>expected %1, got %2</source>
        <translation>%1 erwartet, %2 erhalten</translation>
    </message>
    <message>
        <source> with a bad CRC</source>
        <translation> mit falscher CRC</translation>
    </message>
    <message>
        <source>, too late</source>
        <translation>, zu spät</translation>
    </message>
    <message>
        <source>no frame: %1</source>
        <translation>kein Frame: %1</translation>
    </message>
    <message>
        <source>expected %1, got nothing</source>
        <translation>%1 erwartet, nichts erhalten</translation>
    </message>
    <message>
        <source> within %1</source>
        <translation> innerhalb von %1</translation>
    </message>
    <message>
        <source> after %1</source>
        <translation> nach %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>some characters do not exist in this system&apos;s text encoding</source>
        <translation>einige Zeichen gibt es in der Textkodierung dieses Systems nicht</translation>
    </message>
    <message>
        <source>cannot be read again (a comma, or &quot;//&quot; at the beginning)</source>
        <translation>nicht wieder lesbar (ein Komma oder „//“ am Anfang)</translation>
    </message>
    <message>
        <source>will be different when loaded (CMD needs 2 characters, Addr 4, a delay at most 4)</source>
        <translation>sieht nach dem Laden anders aus (CMD braucht 2 Zeichen, Adr. 4, eine Pause höchstens 4)</translation>
    </message>
    <message>
        <source>Saved, but the file does not hold everything:</source>
        <translation>Gespeichert, aber die Datei enthält nicht alles:</translation>
    </message>
    <message>
        <source>row %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Startbytes Length error</source>
        <translation>Länge der Startbytes falsch</translation>
    </message>
    <message>
        <source>Not thing to send!</source>
        <translation>Nichts zu senden!</translation>
    </message>
    <message>
        <source>No thing to send!</source>
        <translation>Nichts zu senden!</translation>
    </message>
    <message>
        <source>Instruction length %1 is out of the maximum range,&lt;br&gt; sending errors may occur!</source>
        <translation>Die Befehlslänge %1 überschreitet das Maximum,&lt;br&gt; beim Senden können Fehler auftreten!</translation>
    </message>
    <message>
        <source>Not sent: the device has yet to take %1 bytes.</source>
        <translation>Nicht gesendet: Das Gerät muss erst noch %1 Bytes annehmen.</translation>
    </message>
    <message>
        <source>row:%1 instruction length is out of the maximum range, sending errors may occur!</source>
        <translation>Zeile:%1 Die Befehlslänge überschreitet das Maximum, beim Senden können Fehler auftreten!</translation>
    </message>
    <message>
        <source>Please open the HID Device!</source>
        <translation>Bitte das HID-Gerät öffnen!</translation>
    </message>
    <message>
        <source>it takes nothing any more</source>
        <translation>es nimmt nichts mehr an</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>%1, %2 bytes, report ID 0x%3</source>
        <translation>%1, %2 Bytes, Report-ID 0x%3</translation>
    </message>
    <message>
        <source>No port is chosen.</source>
        <translation>Kein Port gewählt.</translation>
    </message>
    <message>
        <source>%1 is in use by another program (%2).</source>
        <translation>%1 wird von einem anderen Programm benutzt (%2).</translation>
    </message>
    <message>
        <source>%1 It belongs to the group %2. To join it: sudo adduser &quot;$USER&quot; %2, then log in again.</source>
        <translation>%1 Es gehört der Gruppe %2. Um ihr beizutreten: sudo adduser &quot;$USER&quot; %2, dann neu anmelden.</translation>
    </message>
    <message>
        <source>The connection to %1 is lost: %2</source>
        <translation>Die Verbindung zu %1 ist abgebrochen: %2</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>Kein Gerät gewählt.</translation>
    </message>
    <message>
        <source>%1 A udev rule helps: copy 70-tarnwick.rules to /etc/udev/rules.d, with a line for %2, and plug the device in again.</source>
        <translation>%1 Eine udev-Regel hilft: 70-tarnwick.rules nach /etc/udev/rules.d kopieren, mit einer Zeile für %2, und das Gerät neu einstecken.</translation>
    </message>
    <message>
        <source>Cannot open regedit!</source>
        <translation>Registrierung nicht lesbar!</translation>
    </message>
    <message>
        <source>Please open the Com Port!</source>
        <translation>Bitte den COM-Port öffnen!</translation>
    </message>
    <message>
        <source>the device is gone</source>
        <translation>das Gerät ist weg</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>eigene</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Ungerade</translation>
    </message>
    <message>
        <source>Sent %1, answered %2, lost %3 (none within 1 s)</source>
        <translation>Gesendet %1, beantwortet %2, verloren %3 (keine Antwort in 1 s)</translation>
    </message>
    <message>
        <source>Reply time: last %1, median %2, 99 % within %3</source>
        <translation>Antwortzeit: zuletzt %1, Median %2, 99 % in %3</translation>
    </message>
    <message>
        <source>Passes: %1
Frames: %2 out, %3 in, %4 lost
Reply: %5, 99 %: %6
Late: %7, 99 %: %8,
at most %9</source>
        <translation>Durchläufe: %1
Frames: %2 aus, %3 ein, %4 weg
Antwort: %5, 99 %: %6
Verzug: %7, 99 %: %8,
höchstens %9</translation>
    </message>
    <message>
        <source>%1 after the row before</source>
        <translation>%1 nach der Zeile davor</translation>
    </message>
    <message>
        <source>First byte at %1, %2 before</source>
        <translation>Erstes Byte um %1, %2 vorher</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>it is out of place</source>
        <translation>sie ist fehl am Platz</translation>
    </message>
    <message>
        <source>no recording begins like this</source>
        <translation>so beginnt keine Aufzeichnung</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>sie ist zu lang</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no text</source>
        <translation>„%1“ ist kein Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no hexadecimal text</source>
        <translation>„%1“ ist kein Hexadezimaltext</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is out of range</source>
        <translation>„%1“ ist außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>no time</source>
        <translation>keine Zeit</translation>
    </message>
    <message>
        <source>an unknown format</source>
        <translation>ein unbekanntes Format</translation>
    </message>
    <message>
        <source>&quot;crc&quot; is not ok, bad or none</source>
        <translation>„crc“ ist weder ok noch bad noch none</translation>
    </message>
    <message>
        <source>an unknown &quot;ev&quot;</source>
        <translation>ein unbekanntes „ev“</translation>
    </message>
    <message>
        <source>no object</source>
        <translation>kein Objekt</translation>
    </message>
    <message>
        <source>a block of an impossible size</source>
        <translation>ein Block von unmöglicher Größe</translation>
    </message>
    <message>
        <source>a block with two sizes</source>
        <translation>ein Block mit zwei Größen</translation>
    </message>
    <message>
        <source>a section that isn&apos;t ours</source>
        <translation>ein fremder Abschnitt</translation>
    </message>
    <message>
        <source>no serial line</source>
        <translation>keine serielle Leitung</translation>
    </message>
    <message>
        <source>a packet that isn&apos;t ours</source>
        <translation>ein fremdes Paket</translation>
    </message>
    <message>
        <source>an impossible time</source>
        <translation>eine unmögliche Zeit</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>Byte %1: %2</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>der Datenträger ist fast voll</translation>
    </message>
    <message>
        <source>the file is gone</source>
        <translation>die Datei ist weg</translation>
    </message>
    <message>
        <source>Insert %1</source>
        <translation>Eingesteckt %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Entfernt %1</translation>
    </message>
    <message>
        <source>No thing to send</source>
        <translation>Nichts zu senden</translation>
    </message>
    <message>
        <source>Too many order!</source>
        <translation>Zu viele Befehle!</translation>
    </message>
    <message>
        <source>Not a Command was selected to send!</source>
        <translation>Kein Befehl zum Senden ausgewählt!</translation>
    </message>
    <message>
        <source>%1 bytes dropped</source>
        <translation>%1 Bytes verworfen</translation>
    </message>
    <message>
        <source>Lost %1</source>
        <translation>Verloren %1</translation>
    </message>
    <message>
        <source>Reopen %1</source>
        <translation>Wieder geöffnet %1</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Do you want to save your command?</source>
        <translation>Sollen die Befehle gespeichert werden?</translation>
    </message>
    <message>
        <source>The commands were changed. Do you want to save them before others are loaded?</source>
        <translation>Die Befehle wurden geändert. Sollen sie gespeichert werden, bevor andere geladen werden?</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Vorgang nicht erlaubt</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Verzeichnis nicht gefunden</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Kein Verzeichnis</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Ein Verzeichnis</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Dateiname zu lang</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Datei zu groß</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele offene Dateien</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Kein Speicherplatz mehr frei</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Plattenkontingent überschritten</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Dateisystem nur lesbar</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>Dateizugriff veraltet</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>Kein solches Gerät</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>Kein solches Gerät oder keine solche Adresse</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Gerät oder Ressource belegt</translation>
    </message>
    <message>
        <source>Resource temporarily unavailable</source>
        <translation>Ressource zurzeit nicht verfügbar</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>Inappropriate ioctl for device</source>
        <translation>Unpassender ioctl für das Gerät</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Ungültiges Argument</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Leitung unterbrochen</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Zeit für die Verbindung überschritten</translation>
    </message>
    <message>
        <source>Device is already open</source>
        <translation>Das Gerät ist schon offen</translation>
    </message>
    <message>
        <source>Device is not open</source>
        <translation>Das Gerät ist nicht offen</translation>
    </message>
    <message>
        <source>Device disappeared from the system</source>
        <translation>Das Gerät ist aus dem System verschwunden</translation>
    </message>
    <message>
        <source>Error reading from device</source>
        <translation>Fehler beim Lesen vom Gerät</translation>
    </message>
    <message>
        <source>Error writing to device</source>
        <translation>Fehler beim Schreiben auf das Gerät</translation>
    </message>
    <message>
        <source>Operation timed out</source>
        <translation>Zeit überschritten</translation>
    </message>
    <message>
        <source>Permission error while locking the device</source>
        <translation>Keine Berechtigung, das Gerät zu sperren</translation>
    </message>
    <message>
        <source>Permission error while creating lock file</source>
        <translation>Keine Berechtigung für die Sperrdatei</translation>
    </message>
    <message>
        <source>Failed to create a lock file for opening the device</source>
        <translation>Die Sperrdatei zum Öffnen des Geräts ließ sich nicht anlegen</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>%1: gone</source>
        <translation>%1: nicht mehr da</translation>
    </message>
    <message>
        <source>No file was loaded or saved yet</source>
        <translation>Noch keine Datei geladen oder gespeichert</translation>
    </message>
</context>
<context>
    <name>RecordControl</name>
    <message>
        <source>Record</source>
        <translation>Aufzeichnen</translation>
    </message>
    <message>
        <source>Recording to %1</source>
        <translation>Aufzeichnung in %1</translation>
    </message>
    <message>
        <source>Recorded: %1</source>
        <translation>Aufgezeichnet: %1</translation>
    </message>
    <message>
        <source>Export a recording</source>
        <translation>Aufzeichnung exportieren</translation>
    </message>
    <message>
        <source>Recordings (*.jsonl *.pcapng)</source>
        <translation>Aufzeichnungen (*.jsonl *.pcapng)</translation>
    </message>
    <message>
        <source>Export to</source>
        <translation>Exportieren nach</translation>
    </message>
</context>
<context>
    <name>RecordPanel</name>
    <message>
        <source>Writes what is in a recording as CSV, for spreadsheets</source>
        <translation>Schreibt den Inhalt einer Aufzeichnung als CSV, für Tabellenprogramme</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>Record…</source>
        <translation>Aufzeichnen…</translation>
    </message>
    <message>
        <source>Writes everything that goes over the wire into a file</source>
        <translation>Schreibt alles, was über die Leitung geht, in eine Datei</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Anhalten</translation>
    </message>
</context>
<context>
    <name>SerialTab</name>
    <message>
        <source>Com Port:</source>
        <translation>COM-Port:</translation>
    </message>
    <message>
        <source>Baudrate:</source>
        <translation>Baudrate:</translation>
    </message>
    <message>
        <source>dataBit:</source>
        <translation>Datenbits:</translation>
    </message>
    <message>
        <source>stopBit:</source>
        <translation>Stoppbits:</translation>
    </message>
    <message>
        <source>Parity:</source>
        <translation>Parität:</translation>
    </message>
    <message>
        <source>CMD Header:</source>
        <translation>CMD-Kopf:</translation>
    </message>
    <message>
        <source>CRC Enable:</source>
        <translation>CRC an:</translation>
    </message>
    <message>
        <source>CRC Enable</source>
        <translation>CRC einschalten</translation>
    </message>
    <message>
        <source>A port that is lost while it is open is opened again when it is back</source>
        <translation>Ein Port, der offen verloren geht, wird wieder geöffnet, sobald er zurück ist</translation>
    </message>
    <message>
        <source>Reopen</source>
        <translation>Neu öffnen</translation>
    </message>
    <message>
        <source>Open Com Port</source>
        <translation>COM-Port öffnen</translation>
    </message>
    <message>
        <source>Send selected items</source>
        <translation>Ausgewählte senden</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Verbunden...</translation>
    </message>
</context>
<context>
    <name>TableClipboard</name>
    <message>
        <source>There are no bytes to paste.</source>
        <translation>Es gibt keine Bytes zum Einfügen.</translation>
    </message>
    <message>
        <source>Not bytes: &quot;%1&quot;.</source>
        <translation>Keine Bytes: „%1“.</translation>
    </message>
    <message>
        <source>A digit is missing in &quot;%1&quot;: each byte has two.</source>
        <translation>In „%1“ fehlt eine Ziffer: Jedes Byte hat zwei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is written in another way than what is before it.</source>
        <translation>„%1“ ist anders geschrieben als das davor.</translation>
    </message>
    <message>
        <source>%1 may be decimal or hexadecimal: write 0x10 or 10h.</source>
        <translation>%1 kann dezimal oder hexadezimal sein: Bitte 0x10 oder 10h schreiben.</translation>
    </message>
    <message>
        <source>More than %1 bytes.</source>
        <translation>Mehr als %1 Bytes.</translation>
    </message>
    <message>
        <source>This row is a pause: its Data are milliseconds.</source>
        <translation>Diese Zeile ist eine Pause: Ihre Daten sind Millisekunden.</translation>
    </message>
</context>
</TS>
