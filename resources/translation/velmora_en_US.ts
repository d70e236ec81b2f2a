<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="pl">
<context>
    <name>AboutWindow</name>
    <message>
        <source>O programie</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Panel sterowania usługą zarządzającą zasilaczami awaryjnymi UPS</source>
        <translation>Control panel of a UPS management service</translation>
    </message>
    <message>
        <source>Licencja</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Licencja MIT: programu można używać, kopiować go, zmieniać i rozpowszechniać, także odpłatnie, pod warunkiem zachowania informacji o prawach autorskich i tekstu licencji. Program jest dostarczany bez jakiejkolwiek gwarancji.</source>
        <translation>MIT License: the program may be used, copied, changed and distributed, also for a fee, provided that the copyright notice and the text of the licence are kept. It comes without any warranty.</translation>
    </message>
    <message>
        <source>Biblioteki</source>
        <translation>Libraries</translation>
    </message>
    <message>
        <source>Wersja %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>AddUpsWindow</name>
    <message>
        <source>Nowy UPS</source>
        <translation>New UPS</translation>
    </message>
    <message>
        <source>Konfiguracja podstawowa</source>
        <translation>Basic settings</translation>
    </message>
    <message>
        <source>Model UPS</source>
        <translation>UPS model</translation>
    </message>
    <message>
        <source>Interfejs komunikacyjny</source>
        <translation>Communication interface</translation>
    </message>
    <message>
        <source>Port komunikacyjny</source>
        <translation>Communication port</translation>
    </message>
    <message>
        <source>Opcje SNMP</source>
        <translation>SNMP options</translation>
    </message>
    <message>
        <source>Nazwa UPS</source>
        <translation>UPS name</translation>
    </message>
    <message>
        <source>Uwaga</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Oprogramowanie wspiera monitorowanie tylko jednego urządzenia tej klasy</source>
        <translation>The software supports monitoring only one device of this class</translation>
    </message>
    <message>
        <source>Konfiguracja dla tego zasilacza zostanie przywrócona do domyślnych zdarzeń. Czy kontynuować?</source>
        <translation>The event policy of this UPS will be reset to the default events. Do you want to continue?</translation>
    </message>
</context>
<context>
    <name>AddVirtualUpsWindow</name>
    <message>
        <source>Wirtualny UPS</source>
        <translation>Virtual UPS</translation>
    </message>
    <message>
        <source>Adres</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Brak urządzeń obsługujących pracę równoległą</source>
        <translation>There are no devices that support parallel operation</translation>
    </message>
    <message>
        <source>Zajęty; Brak komunikacji</source>
        <translation>Busy; No communication</translation>
    </message>
    <message>
        <source>Zajęty</source>
        <translation>Busy</translation>
    </message>
    <message>
        <source>Brak komunikacji</source>
        <translation>No communication</translation>
    </message>
    <message>
        <source>Dostępny</source>
        <translation>Available</translation>
    </message>
    <message>
        <source>Dostępny; Brak komunikacji</source>
        <translation>Available; No communication</translation>
    </message>
</context>
<context>
    <name>AdvancedOptionsWindow</name>
    <message>
        <source>Błąd ładowania pliku</source>
        <translation>File loading error</translation>
    </message>
    <message>
        <source>Błąd odczytu pliku</source>
        <translation>File reading error</translation>
    </message>
    <message>
        <source>Nie można odnaleźć pliku z parametrami </source>
        <translation>The parameter file cannot be found: </translation>
    </message>
    <message>
        <source>Nie można otworzyć pliku z parametrami </source>
        <translation>The parameter file cannot be opened: </translation>
    </message>
    <message>
        <source>Plik </source>
        <translation>The file </translation>
    </message>
    <message>
        <source> zawiera błędy</source>
        <translation> contains errors</translation>
    </message>
    <message>
        <source>Definiowanie zdarzenia</source>
        <translation>Event definition</translation>
    </message>
    <message>
        <source>Nazwa zdarzenia</source>
        <translation>Event name</translation>
    </message>
    <message>
        <source>Warunki początkowe</source>
        <translation>Start conditions</translation>
    </message>
    <message>
        <source>Zdarzenia</source>
        <translation>Events</translation>
    </message>
    <message>
        <source>Operatory</source>
        <translation>Operators</translation>
    </message>
    <message>
        <source>Wartości</source>
        <translation>Values</translation>
    </message>
    <message>
        <source>Szukaj</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Warunki końcowe</source>
        <translation>End conditions</translation>
    </message>
    <message>
        <source>Zapisz jako nowy</source>
        <translation>Save as new</translation>
    </message>
    <message>
        <source>Zapisz</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Anuluj</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Pole &quot;Nazwa zdarzenia&quot; nie może być puste</source>
        <translation>The &quot;Event name&quot; field must not be empty</translation>
    </message>
    <message>
        <source>Nazwa zdarzenia zawiera niedozwolone znaki</source>
        <translation>The event name contains characters that are not allowed</translation>
    </message>
    <message>
        <source>Należy wprowadzić wyrażenie.</source>
        <translation>Please enter a condition.</translation>
    </message>
    <message>
        <source>Wprowadzone wyrażenie jest nieprawidłowe.</source>
        <translation>The condition that you entered is not valid.</translation>
    </message>
    <message>
        <source>Uwaga</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Wystąpił błąd podczas przetwarzania wyrażenia.</source>
        <translation>An error occurred while processing the condition.</translation>
    </message>
    <message>
        <source>Konfiguracja zawiera już zdarzenie </source>
        <translation>The configuration already contains the event </translation>
    </message>
    <message>
        <source>✗ Brak warunku</source>
        <translation>✗ No condition</translation>
    </message>
    <message>
        <source>✗ Nawiasy lub operatory nie pasują do siebie</source>
        <translation>✗ Parentheses or operators do not match</translation>
    </message>
    <message>
        <source>✗ Niedozwolony znak, liczba ujemna lub nowy wiersz</source>
        <translation>✗ Forbidden character, negative number or new line</translation>
    </message>
    <message>
        <source>✗ Stan można porównać tylko operatorem ==</source>
        <translation>✗ A state can only be compared by ==</translation>
    </message>
    <message>
        <source>✗ Nieznana nazwa lub wartość</source>
        <translation>✗ Unknown name or value</translation>
    </message>
    <message>
        <source>✗ Stan porównuje się z ON lub OFF, a parametr z liczbą</source>
        <translation>✗ Compare a state with ON or OFF, a parameter with a number</translation>
    </message>
    <message>
        <source>✓ Warunek jest prawidłowy</source>
        <translation>✓ The condition is valid</translation>
    </message>
</context>
<context>
    <name>ApplicationConfigurationWindow</name>
    <message>
        <source>Konfiguracja aplikacji</source>
        <translation>Application settings</translation>
    </message>
    <message>
        <source>Urządzenia</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Dodaj UPS</source>
        <translation>Add UPS</translation>
    </message>
    <message>
        <source>Dodaj wirtualny UPS</source>
        <translation>Add virtual UPS</translation>
    </message>
    <message>
        <source>Konfiguracja SMTP</source>
        <translation>SMTP settings</translation>
    </message>
    <message>
        <source>Szyfrowanie połączenia</source>
        <translation>Connection encryption</translation>
    </message>
    <message>
        <source>Serwer SMTP</source>
        <translation>SMTP server</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Zakres: 0-65535</source>
        <translation>Range: 0-65535</translation>
    </message>
    <message>
        <source>Adres e-mail</source>
        <translation>E-mail address</translation>
    </message>
    <message>
        <source>Limit czasu operacji</source>
        <translation>Operation time limit</translation>
    </message>
    <message>
        <source>Zakres: 10-120 [s]</source>
        <translation>Range: 10-120 [s]</translation>
    </message>
    <message>
        <source>Serwer SMTP wymaga uwierzytelnienia</source>
        <translation>SMTP server requires authentication</translation>
    </message>
    <message>
        <source>Nazwa użytkownika</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>Hasło</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>haslo</source>
        <translation>password</translation>
    </message>
    <message>
        <source>Testuj ustawienia SMTP</source>
        <translation>Test SMTP settings</translation>
    </message>
    <message>
        <source>Konfiguracja podstawowa</source>
        <translation>Basic settings</translation>
    </message>
    <message>
        <source>Lokalizacja logów</source>
        <translation>Log folder</translation>
    </message>
    <message>
        <source>Wybierz...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>Uruchom przy starcie systemu</source>
        <translation>Start with the system</translation>
    </message>
    <message>
        <source>Automatycznie sprawdzaj dostępność aktualizacji</source>
        <translation>Check for updates automatically</translation>
    </message>
    <message>
        <source>Brak</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Uwaga</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Nie można zapisać w pliku ustawień panelu, czy ma on sprawdzać dostępność aktualizacji.</source>
        <translation>The choice whether to check for updates could not be saved to the panel&apos;s settings file.</translation>
    </message>
    <message>
        <source>Wybierz katalog</source>
        <translation>Choose a folder</translation>
    </message>
    <message>
        <source>Nowy UPS</source>
        <translation>New UPS</translation>
    </message>
    <message>
        <source>Wirtualny UPS</source>
        <translation>Virtual UPS</translation>
    </message>
    <message>
        <source>Adres serwera</source>
        <translation>Address of the server</translation>
    </message>
    <message>
        <source>Liczba od %1 do %2</source>
        <translation>Number from %1 to %2</translation>
    </message>
    <message>
        <source>Adres e-mail, np. ups@example.com</source>
        <translation>E-mail address, e.g. ups@example.com</translation>
    </message>
</context>
<context>
    <name>ComputerConfigurationWindow</name>
    <message>
        <source>Konfiguracja komputera</source>
        <translation>Computer settings</translation>
    </message>
    <message>
        <source>Nazwa komputera</source>
        <translation>Computer name</translation>
    </message>
    <message>
        <source>Adres komputera</source>
        <translation>Computer address</translation>
    </message>
    <message>
        <source>Hasło</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Grupa</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Anuluj</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Błędny adres komputera</source>
        <translation>Invalid computer address</translation>
    </message>
    <message>
        <source>Istnieje już komputer o podanym adresie</source>
        <translation>A computer with this address already exists</translation>
    </message>
    <message>
        <source>Brak odpowiedzi</source>
        <translation>No response</translation>
    </message>
    <message>
        <source>Netclient jest nieosiągalny</source>
        <translation>The network client cannot be reached</translation>
    </message>
</context>
<context>
    <name>ConnectWithServiceWindow</name>
    <message>
        <source>Połącz z usługą</source>
        <translation>Connect to service</translation>
    </message>
    <message>
        <source>Łączenie</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>Adres IP</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>Uwaga</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Należy podać adres IP lub nazwę domenową komputera</source>
        <translation>Please enter the IP address or the domain name of the computer</translation>
    </message>
    <message>
        <source>Nie można zapisać adresu usługi w pliku ustawień.
Zmiana obowiązuje do zakończenia programu.</source>
        <translation>The address of the service could not be saved in the settings file.
The change holds until the program ends.</translation>
    </message>
</context>
<context>
    <name>DebugWarningWidget</name>
    <message>
        <source>TRYB DEBUGGOWANIA</source>
        <translation>DEBUG MODE</translation>
    </message>
</context>
<context>
    <name>DiscoverWindow</name>
    <message>
        <source>Odkrywanie</source>
        <translation>Discovery</translation>
    </message>
    <message>
        <source>Komputery zarządzane przez Velmora</source>
        <translation>Computers managed by Velmora</translation>
    </message>
    <message>
        <source>Nazwa</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Adres</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Komputery niezarządzane</source>
        <translation>Unmanaged computers</translation>
    </message>
    <message>
        <source>Dodaj</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Nieprawidłowe hasło</source>
        <translation>Wrong password</translation>
    </message>
    <message>
        <source>Podane hasło Administratora jest nieprawidłowe</source>
        <translation>The administrator password you entered is incorrect</translation>
    </message>
</context>
<context>
    <name>ExtendInformationWindow</name>
    <message>
        <source>Napięcie wejściowe</source>
        <translation>Input voltage</translation>
    </message>
    <message>
        <source>Napięcie międzyfazowe w sieci elektrycznej</source>
        <translation>Mains line-to-line voltage</translation>
    </message>
    <message>
        <source>Częstotliwość wejściowa</source>
        <translation>Input frequency</translation>
    </message>
    <message>
        <source>Moc czynna wejściowa</source>
        <translation>Input active power</translation>
    </message>
    <message>
        <source>Napięcie wyjściowe</source>
        <translation>Output voltage</translation>
    </message>
    <message>
        <source>Wyjściowe napięcie międzyfazowe</source>
        <translation>Output line-to-line voltage</translation>
    </message>
    <message>
        <source>Częstotliwość wyjściowa</source>
        <translation>Output frequency</translation>
    </message>
    <message>
        <source>Moc pozorna wejściowa</source>
        <translation>Input apparent power</translation>
    </message>
    <message>
        <source>Prąd wejściowy</source>
        <translation>Input current</translation>
    </message>
    <message>
        <source>PF wejściowy</source>
        <translation>Input PF</translation>
    </message>
    <message>
        <source>Moc czynna wyjściowa</source>
        <translation>Output active power</translation>
    </message>
    <message>
        <source>Prąd wyjściowy</source>
        <translation>Output current</translation>
    </message>
    <message>
        <source>PF wyjściowy</source>
        <translation>Output PF</translation>
    </message>
    <message>
        <source>Moc bierna wyjściowa</source>
        <translation>Output reactive power</translation>
    </message>
    <message>
        <source>Moc pozorna wyjściowa</source>
        <translation>Output apparent power</translation>
    </message>
    <message>
        <source>Prąd akumulatorów</source>
        <translation>Battery current</translation>
    </message>
    <message>
        <source>Napięcie akumulatorów</source>
        <translation>Battery voltage</translation>
    </message>
    <message>
        <source>Temperatura</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>Obciążenie</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>Moc obciążenia</source>
        <translation>Load power</translation>
    </message>
    <message>
        <source>Temperatura bloku DC/AC</source>
        <translation>DC/AC unit temperature</translation>
    </message>
    <message>
        <source>Temperatura radiatora</source>
        <translation>Heat sink temperature</translation>
    </message>
    <message>
        <source>Temperatura akumulatora</source>
        <translation>Battery temperature</translation>
    </message>
    <message>
        <source>Czas pracy rezerwowej</source>
        <translation>Time on battery</translation>
    </message>
    <message>
        <source>Adres MAC</source>
        <translation>MAC address</translation>
    </message>
    <message>
        <source>Adres IP</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>Maska sieci</source>
        <translation>Network mask</translation>
    </message>
    <message>
        <source>Brama domyślna</source>
        <translation>Default gateway</translation>
    </message>
    <message>
        <source>Pojemność akumulatorów</source>
        <translation>Battery capacity</translation>
    </message>
    <message>
        <source>Napięcie bypass</source>
        <translation>Bypass voltage</translation>
    </message>
    <message>
        <source>Napięcie bypass L1/L2/L3</source>
        <translation>Bypass voltage L1/L2/L3</translation>
    </message>
    <message>
        <source>Prąd bypass</source>
        <translation>Bypass current</translation>
    </message>
    <message>
        <source>Prąd bypass L1/L2/L3</source>
        <translation>Bypass current L1/L2/L3</translation>
    </message>
    <message>
        <source>Moc czynna wej L1/L2/L3</source>
        <translation>Input active power L1/L2/L3</translation>
    </message>
    <message>
        <source>Moc czynna wyj L1/L2/L3</source>
        <translation>Output active power L1/L2/L3</translation>
    </message>
    <message>
        <source>Moc czynna bypass</source>
        <translation>Bypass active power</translation>
    </message>
    <message>
        <source>Moc czynna byp L1/L2/L3</source>
        <translation>Bypass active power L1/L2/L3</translation>
    </message>
    <message>
        <source>Moc bierna wyj L1/L2/L3</source>
        <translation>Output reactive power L1/L2/L3</translation>
    </message>
    <message>
        <source>Moc pozorna wej L1/L2/L3</source>
        <translation>Input apparent power L1/L2/L3</translation>
    </message>
    <message>
        <source>PF wyjściowy L1/L2/L3</source>
        <translation>Output PF L1/L2/L3</translation>
    </message>
    <message>
        <source>Moc pozorna wyj L1/L2/L3</source>
        <translation>Output apparent power L1/L2/L3</translation>
    </message>
    <message>
        <source>Moc pozorna bypass</source>
        <translation>Bypass apparent power</translation>
    </message>
    <message>
        <source>Moc pozorna byp L1/L2/L3</source>
        <translation>Bypass apparent power L1/L2/L3</translation>
    </message>
    <message>
        <source>Współczynnik mocy wyjściowej</source>
        <translation>Output power factor</translation>
    </message>
    <message>
        <source>Współczynnik mocy bypass</source>
        <translation>Bypass power factor</translation>
    </message>
    <message>
        <source>PF toru obejściowego</source>
        <translation>Bypass PF</translation>
    </message>
    <message>
        <source>Współczynnik mocy prostownika</source>
        <translation>Rectifier power factor</translation>
    </message>
    <message>
        <source>Częstotliwość bypass</source>
        <translation>Bypass frequency</translation>
    </message>
    <message>
        <source>Napięcie prostownika</source>
        <translation>Rectifier voltage</translation>
    </message>
    <message>
        <source>Prąd prostownika</source>
        <translation>Rectifier current</translation>
    </message>
    <message>
        <source>Częstotliwość prostownika</source>
        <translation>Rectifier frequency</translation>
    </message>
    <message>
        <source>Moc czynna prostownika</source>
        <translation>Rectifier active power</translation>
    </message>
    <message>
        <source>Moc pozorna prostownika</source>
        <translation>Rectifier apparent power</translation>
    </message>
    <message>
        <source>PF prostownika</source>
        <translation>Rectifier PF</translation>
    </message>
    <message>
        <source>Stan akumulatorów</source>
        <translation>Battery state</translation>
    </message>
    <message>
        <source>Temperatura otoczenia</source>
        <translation>Ambient temperature</translation>
    </message>
    <message>
        <source>Wilgotność względna</source>
        <translation>Relative humidity</translation>
    </message>
    <message>
        <source>Maksymalne napięcie wejściowe</source>
        <translation>Maximum input voltage</translation>
    </message>
    <message>
        <source>Minimalne napięcie wejściowe</source>
        <translation>Minimum input voltage</translation>
    </message>
    <message>
        <source>Dodatnie napięcie magistrali</source>
        <translation>Positive bus voltage</translation>
    </message>
    <message>
        <source>Ujemne napięcie magistrali</source>
        <translation>Negative bus voltage</translation>
    </message>
    <message>
        <source>Bazowy współczynnik kompensacji</source>
        <translation>Base compensation factor</translation>
    </message>
    <message>
        <source>Współczynnik kompensacji</source>
        <translation>Compensation factor</translation>
    </message>
    <message>
        <source>D+</source>
        <translation>D+</translation>
    </message>
    <message>
        <source>Poziom paliwa</source>
        <translation>Fuel level</translation>
    </message>
    <message>
        <source>Całkowity czas pracy</source>
        <translation>Total run time</translation>
    </message>
    <message>
        <source>Całkowite zużycie paliwa</source>
        <translation>Total fuel consumption</translation>
    </message>
    <message>
        <source>Liczba uruchomień</source>
        <translation>Number of starts</translation>
    </message>
    <message>
        <source>Wyłączenia awaryjne</source>
        <translation>Emergency stops</translation>
    </message>
    <message>
        <source>Czas do przeglądu</source>
        <translation>Time to maintenance</translation>
    </message>
    <message>
        <source>Numer seryjny sterownika</source>
        <translation>Controller serial number</translation>
    </message>
    <message>
        <source>Licznik zaników napiecia sieciowego</source>
        <translation>Mains failure counter</translation>
    </message>
    <message>
        <source>Licznik wyzwoleń AVR podwyższającego</source>
        <translation>AVR boost counter</translation>
    </message>
    <message>
        <source>Licznik przeciążeń</source>
        <translation>Overload counter</translation>
    </message>
    <message>
        <source>Licznik zwarć</source>
        <translation>Short-circuit counter</translation>
    </message>
    <message>
        <source>Licznik rozładowań</source>
        <translation>Discharge counter</translation>
    </message>
    <message>
        <source>Czas pracy w przeciążeniu</source>
        <translation>Overload operation time</translation>
    </message>
    <message>
        <source>Czas pracy sieciowej</source>
        <translation>Mains operation time</translation>
    </message>
    <message>
        <source>Czas pracy autonomicznej</source>
        <translation>Battery operation time</translation>
    </message>
    <message>
        <source>Próg sygnalizacji niskiego poziomu baterii</source>
        <translation>Battery low warning threshold</translation>
    </message>
    <message>
        <source>Numer fabryczny UPS</source>
        <translation>UPS serial number</translation>
    </message>
    <message>
        <source>Nazwa urządzenia</source>
        <translation>Device name</translation>
    </message>
    <message>
        <source>Lokalizacja urządzenia</source>
        <translation>Device location</translation>
    </message>
    <message>
        <source>Osoba kontaktowa</source>
        <translation>Contact person</translation>
    </message>
    <message>
        <source>Wersja firmware karty NMC</source>
        <translation>NMC card firmware version</translation>
    </message>
    <message>
        <source>Maksymalna ilość modułów UPS</source>
        <translation>Maximum number of UPS modules</translation>
    </message>
    <message>
        <source>Znamionowa moc pozorna pojedynczego
modułu UPS</source>
        <translation>Rated apparent power of a single
UPS module</translation>
    </message>
    <message>
        <source>Konfiguracja faz wejściowych/wyjściowych UPS</source>
        <translation>UPS input/output phase configuration</translation>
    </message>
    <message>
        <source>Napięcie fazowe w sieci elektrycznej</source>
        <translation>Mains phase voltage</translation>
    </message>
    <message>
        <source>Częstotliwość w sieci elektrycznej</source>
        <translation>Mains frequency</translation>
    </message>
    <message>
        <source>Informacje rozszerzone</source>
        <translation>Extended information</translation>
    </message>
</context>
<context>
    <name>GroupConfigurationWindow</name>
    <message>
        <source>Konfiguracja grupy</source>
        <translation>Group settings</translation>
    </message>
    <message>
        <source>Nazwa grupy</source>
        <translation>Group name</translation>
    </message>
    <message>
        <source>Komputery w grupie</source>
        <translation>Computers in the group</translation>
    </message>
    <message>
        <source>Dostępne komputery</source>
        <translation>Available computers</translation>
    </message>
    <message>
        <source>Nazwa</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Adres</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>◀ Dodaj</source>
        <translation>◀ Add</translation>
    </message>
    <message>
        <source>Usuń ▶</source>
        <translation>Remove ▶</translation>
    </message>
    <message>
        <source>Błędna nazwa grupy</source>
        <translation>Invalid group name</translation>
    </message>
    <message>
        <source>Nazwa grupy zawiera niedozwolone znaki</source>
        <translation>The group name contains characters that are not allowed</translation>
    </message>
    <message>
        <source>Istnieje już grupa o podanej nazwie</source>
        <translation>A group with this name already exists</translation>
    </message>
</context>
<context>
    <name>LineEditWidget</name>
    <message>
        <source>Dane niedostępne w wybranym modelu</source>
        <translation>Not available on the selected model</translation>
    </message>
    <message>
        <source>Dane niedostępne przy użyciu wybranego interfejsu komunikacyjnego</source>
        <translation>Not available over the selected communication interface</translation>
    </message>
</context>
<context>
    <name>LoggingConfigurationWindow</name>
    <message>
        <source>Konfiguracja logów</source>
        <translation>Log settings</translation>
    </message>
    <message>
        <source>Rejestrowane logi</source>
        <translation>What is logged</translation>
    </message>
    <message>
        <source>Dane</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Przegląd danych</source>
        <translation>View data</translation>
    </message>
    <message>
        <source>Komunikaty</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Przegląd komunikatów</source>
        <translation>View messages</translation>
    </message>
    <message>
        <source>Kompensacja mocy</source>
        <translation>Power compensation</translation>
    </message>
    <message>
        <source>Przegląd kompensacji</source>
        <translation>View compensation</translation>
    </message>
    <message>
        <source>Ustawienia</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Maksymalna wielkość pliku (1kB-100000 kB)</source>
        <translation>Maximum file size (1 kB-100000 kB)</translation>
    </message>
    <message>
        <source>Interwał logowania (1s-3600 s)</source>
        <translation>Logging interval (1 s-3600 s)</translation>
    </message>
</context>
<context>
    <name>LogiInWindow</name>
    <message>
        <source>Zaloguj</source>
        <translation>Log in</translation>
    </message>
    <message>
        <source>Hasło</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Podpowiedź hasła</source>
        <translation>Password hint</translation>
    </message>
    <message>
        <source>Nieprawidłowe hasło</source>
        <translation>Wrong password</translation>
    </message>
    <message>
        <source>Podane hasło Administratora jest nieprawidłowe</source>
        <translation>The administrator password is not correct</translation>
    </message>
    <message>
        <source>Błąd połączenia</source>
        <translation>Connection error</translation>
    </message>
    <message>
        <source>Brak połączenia z usługą</source>
        <translation>No connection to the service</translation>
    </message>
</context>
<context>
    <name>NetworkConfigurationWindow</name>
    <message>
        <source>Brak komunikacji</source>
        <translation>No communication</translation>
    </message>
    <message>
        <source>Praca w trybie sieciowym</source>
        <translation>Mains operation</translation>
    </message>
    <message>
        <source>Praca w trybie podtrzymania z baterii</source>
        <translation>Battery operation</translation>
    </message>
    <message>
        <source>Niski poziom energii baterii</source>
        <translation>Battery low</translation>
    </message>
    <message>
        <source>Zwarcie</source>
        <translation>Short circuit</translation>
    </message>
    <message>
        <source>Przeciążenie</source>
        <translation>Overload</translation>
    </message>
    <message>
        <source>Aktywny AVR</source>
        <translation>AVR active</translation>
    </message>
    <message>
        <source>Tryb błędu</source>
        <translation>Fault mode</translation>
    </message>
    <message>
        <source>Konfiguracja zdarzeń</source>
        <translation>Event policy</translation>
    </message>
    <message>
        <source>Konfiguracja elementów sieciowych</source>
        <translation>Network element settings</translation>
    </message>
    <message>
        <source>Dostępne komputery</source>
        <translation>Available computers</translation>
    </message>
    <message>
        <source>Nazwa</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Adres</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Dodaj</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Usuń</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Odkrywanie</source>
        <translation>Discovery</translation>
    </message>
    <message>
        <source>▼ Do grupy</source>
        <translation>▼ Add to group</translation>
    </message>
    <message>
        <source>▲ Z grupy</source>
        <translation>▲ Remove from group</translation>
    </message>
    <message>
        <source>Grupy komputerów</source>
        <translation>Computer groups</translation>
    </message>
    <message>
        <source>Edytuj</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Zmień hasło komputera</source>
        <translation>Change computer password</translation>
    </message>
    <message>
        <source>Zdarzenia</source>
        <translation>Events</translation>
    </message>
    <message>
        <source>Zdarzenie</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>Ustawienia zdarzenia</source>
        <translation>Selected event</translation>
    </message>
    <message>
        <source>Zaawansowane</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>Wyświetl komunikat</source>
        <translation>Show a message</translation>
    </message>
    <message>
        <source>Treść komunikatu</source>
        <translation>Text of the message</translation>
    </message>
    <message>
        <source>Polecenie systemowe</source>
        <translation>System command</translation>
    </message>
    <message>
        <source>Konfiguruj</source>
        <translation>Configure</translation>
    </message>
    <message>
        <source>Wyślij email</source>
        <translation>Send e-mail</translation>
    </message>
    <message>
        <source>Zamknij system</source>
        <translation>Shut down the system</translation>
    </message>
    <message>
        <source>Wyjście sterowalne</source>
        <translation>Switchable output</translation>
    </message>
    <message>
        <source>Zapisz</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Anuluj</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Grupa</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Błąd odczytu</source>
        <translation>Read error</translation>
    </message>
    <message>
        <source>Nie odczytano pliku konfiguracyjnego</source>
        <translation>The configuration file could not be read</translation>
    </message>
    <message>
        <source>Hasło dla elementu sieciowego zostało zmienione.</source>
        <translation>The password of a network element has been changed.</translation>
    </message>
    <message>
        <source>Konieczne jest zachowanie konfiguracji. Czy zachować? </source>
        <translation>The configuration has to be saved. Save it now? </translation>
    </message>
    <message>
        <source>Zdarzenie </source>
        <translation>Event </translation>
    </message>
    <message>
        <source>Nieprawidłowe hasło</source>
        <translation>Wrong password</translation>
    </message>
    <message>
        <source>Podane hasło Administratora jest nieprawidłowe</source>
        <translation>The administrator password you entered is incorrect</translation>
    </message>
    <message>
        <source>Uwaga!</source>
        <translation>Warning!</translation>
    </message>
    <message>
        <source>Wybierz grupę do której chcesz dodać zdarzenie</source>
        <translation>Select the group that the event is to be added to</translation>
    </message>
    <message>
        <source>Wybierz zdarzenie</source>
        <translation>Select an event</translation>
    </message>
    <message>
        <source>Konfiguracja zawiera już zdarzenie </source>
        <translation>The configuration already contains the event </translation>
    </message>
    <message>
        <source>Nie zostały ustawione parametry zamknięcia systemu.
Wybierz przycisk &quot;Konfiguruj&quot;.</source>
        <translation>The shutdown parameters have not been set.
Choose the &quot;Configure&quot; button.</translation>
    </message>
    <message>
        <source>Nie zostały ustawione parametry polecenia systemowego.
Wybierz przycisk &quot;Konfiguruj&quot;.</source>
        <translation>The system command parameters have not been set.
Choose the &quot;Configure&quot; button.</translation>
    </message>
    <message>
        <source>Nie zostały ustawione parametry dla wysyłania email.
Wybierz przycisk &quot;Konfiguruj&quot;.</source>
        <translation>The e-mail parameters have not been set.
Choose the &quot;Configure&quot; button.</translation>
    </message>
    <message>
        <source>Nie zostały ustawione parametry gniazda sterowalnego.
Wybierz przycisk &quot;Konfiguruj&quot;.</source>
        <translation>The switchable socket parameters have not been set.
Choose the &quot;Configure&quot; button.</translation>
    </message>
    <message>
        <source>Nieprawidłowa konfiguracja.
Opóźnienie wykonania polecenia systemowego jest większe od opóźnienia zamknięcia systemu.
Polecenie systemowe nie zostanie wykonane.</source>
        <translation>Invalid configuration.
The system command is delayed longer than the shutdown.
The system command will not be run.</translation>
    </message>
    <message>
        <source>Nieprawidłowa konfiguracja.
Opóźnienie włączenia/wyłączenia gniazda sterowalnego jest większe od opóźnienia zamknięcia systemu.
Polecenie dla gniazda sterowalnego nie zostanie wykonane.</source>
        <translation>Invalid configuration.
Switching the output socket on or off is delayed longer than the shutdown.
The command for the output socket will not be carried out.</translation>
    </message>
    <message>
        <source>Wybierz komputer z listy dostępnych komputerów</source>
        <translation>Select a computer from the list of available computers</translation>
    </message>
    <message>
        <source>Wybierz grupę do której chcesz dodać komputer </source>
        <translation>Select the group to which you want to add the computer </translation>
    </message>
    <message>
        <source>Wybrana grupa zawiera już ten komputer</source>
        <translation>The selected group already contains this computer</translation>
    </message>
    <message>
        <source>Czy na pewno usunąć komputer? 
Spowoduje to usunięcie komputera ze wszystkich grup.</source>
        <translation>Do you really want to remove the computer? 
This removes it from all groups.</translation>
    </message>
</context>
<context>
    <name>OutputSocketWindow</name>
    <message>
        <source>Wyjście sterowalne</source>
        <translation>Switchable output</translation>
    </message>
    <message>
        <source>Gniazdo sterowalne</source>
        <translation>Switchable socket</translation>
    </message>
    <message>
        <source>Sekcja nr 1</source>
        <translation>Section 1</translation>
    </message>
    <message>
        <source>Włącz</source>
        <translation>Switch on</translation>
    </message>
    <message>
        <source>Wyłącz</source>
        <translation>Switch off</translation>
    </message>
    <message>
        <source>Czas po którym polecenie zostanie wykonane</source>
        <translation>Delay before the command is carried out</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Sekcja nr 2</source>
        <translation>Section 2</translation>
    </message>
</context>
<context>
    <name>PasswordChangeWindow</name>
    <message>
        <source>Zmiana hasła</source>
        <translation>Change password</translation>
    </message>
    <message>
        <source>Stare hasło</source>
        <translation>Old password</translation>
    </message>
    <message>
        <source>Nowe hasło</source>
        <translation>New password</translation>
    </message>
    <message>
        <source>Powtórz nowe hasło</source>
        <translation>Repeat new password</translation>
    </message>
    <message>
        <source>Zmień hasło dla </source>
        <translation>Change password for </translation>
    </message>
    <message>
        <source>Nieprawidłowe hasło</source>
        <translation>Wrong password</translation>
    </message>
    <message>
        <source>Wprowadzono nieprawidłowe hasło administratora</source>
        <translation>The administrator password that was entered is not correct</translation>
    </message>
    <message>
        <source>Uwaga</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Proszę wprowadzić nowe hasło</source>
        <translation>Please enter a new password</translation>
    </message>
    <message>
        <source>Błąd</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Proszę sprawdzić nowe hasło</source>
        <translation>Please check the new password</translation>
    </message>
    <message>
        <source>Hasło zostało zmienione</source>
        <translation>The password has been changed</translation>
    </message>
    <message>
        <source>Brak odpowiedzi</source>
        <translation>No answer</translation>
    </message>
    <message>
        <source>Usługa Velmora jest nieosiągalna</source>
        <translation>The Velmora service cannot be reached</translation>
    </message>
</context>
<context>
    <name>PowerOffWindow</name>
    <message>
        <source>Zamknij system</source>
        <translation>Shut down the system</translation>
    </message>
    <message>
        <source>Zamknij System</source>
        <translation>Shut Down the System</translation>
    </message>
    <message>
        <source>Standardowe zamknięcie systemu</source>
        <translation>Normal shutdown</translation>
    </message>
    <message>
        <source>Wymuszone zamknięcie systemu</source>
        <translation>Forced shutdown</translation>
    </message>
    <message>
        <source>Hibernacja</source>
        <translation>Hibernation</translation>
    </message>
    <message>
        <source>Restart systemu</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>Po zamknięciu systemu wyłącz zasilacz UPS</source>
        <translation>Turn off the UPS after the shutdown</translation>
    </message>
    <message>
        <source>Opóźnienie</source>
        <translation>Delay</translation>
    </message>
    <message>
        <source>Czas po którym polecenie zostatnie wykonane</source>
        <translation>Delay before the command is carried out</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
</context>
<context>
    <name>ProgressBarWidget</name>
    <message>
        <source>Dane niedostępne w wybranym modelu</source>
        <translation>Not available on the selected model</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Wirtualny UPS</source>
        <translation>Virtual UPS</translation>
    </message>
    <message>
        <source>Agregat Borel</source>
        <translation>Borel genset</translation>
    </message>
    <message>
        <source>Brak komunikacji</source>
        <translation>No communication</translation>
    </message>
    <message>
        <source>Tryb pracy - </source>
        <translation>Work mode - </translation>
    </message>
    <message>
        <source>Załączony AVR podwyższający</source>
        <translation>AVR boost on</translation>
    </message>
    <message>
        <source>Zwarcie na wyjściu zasilacza</source>
        <translation>Short-circuit at the UPS output</translation>
    </message>
    <message>
        <source>Przeciążenie zasilacza</source>
        <translation>UPS overload</translation>
    </message>
    <message>
        <source>Nadmierny wzrost temperatury</source>
        <translation>Overtemperature</translation>
    </message>
    <message>
        <source>Zużycie akumulatora</source>
        <translation>Battery worn out</translation>
    </message>
    <message>
        <source>Stan niskiej baterii</source>
        <translation>Battery low</translation>
    </message>
    <message>
        <source>Wsteczne zasilanie gniazd wyjściowych</source>
        <translation>Backfeed at the output sockets</translation>
    </message>
    <message>
        <source>Status ładowania akumulatorów</source>
        <translation>Battery charging status</translation>
    </message>
    <message>
        <source>Status naładowania akumulatorów</source>
        <translation>Battery charge status</translation>
    </message>
    <message>
        <source>Ładowanie</source>
        <translation>Charging</translation>
    </message>
    <message>
        <source>Oczekiwanie na ładunek minimalny</source>
        <translation>Waiting for minimum charge</translation>
    </message>
    <message>
        <source>Serwis</source>
        <translation>Maintenance</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Przeciążenie wyjścia</source>
        <translation>Output overload</translation>
    </message>
    <message>
        <source>Błąd akumulatora</source>
        <translation>Battery fault</translation>
    </message>
    <message>
        <source>Aktywne EPO</source>
        <translation>EPO active</translation>
    </message>
    <message>
        <source>Błąd wewnętrzny</source>
        <translation>Internal fault</translation>
    </message>
    <message>
        <source>Nadmierny wzrost temperatury prostownika</source>
        <translation>Rectifier overtemperature</translation>
    </message>
    <message>
        <source>Nadmierny wzrost temperatury falownika</source>
        <translation>Inverter overtemperature</translation>
    </message>
    <message>
        <source>Brak komunikacji z prostownikiem</source>
        <translation>No communication with the rectifier</translation>
    </message>
    <message>
        <source>Brak komunikacji z falownikiem</source>
        <translation>No communication with the inverter</translation>
    </message>
    <message>
        <source>Niepoprawna kolejność faz linii BYPASS</source>
        <translation>Incorrect bypass line phase sequence</translation>
    </message>
    <message>
        <source>Zasilanie linii BYPASS poza zakresem</source>
        <translation>Bypass line supply out of range</translation>
    </message>
    <message>
        <source>Otwarty obwód baterii</source>
        <translation>Battery circuit open</translation>
    </message>
    <message>
        <source>Zasilanie linii podstawowej poza zakresem</source>
        <translation>Main line supply out of range</translation>
    </message>
    <message>
        <source>Błąd wewnętrzny prostownika</source>
        <translation>Internal rectifier fault</translation>
    </message>
    <message>
        <source>Błąd wewnętrzny falownika</source>
        <translation>Internal inverter fault</translation>
    </message>
    <message>
        <source>Praca normalna</source>
        <translation>Normal operation</translation>
    </message>
    <message>
        <source>Praca równoległa - MASTER</source>
        <translation>Parallel operation - MASTER</translation>
    </message>
    <message>
        <source>Praca równoległa - SLAVE</source>
        <translation>Parallel operation - SLAVE</translation>
    </message>
    <message>
        <source>Awaria wyświetlacza LCD</source>
        <translation>LCD display failure</translation>
    </message>
    <message>
        <source>Praca równoległa - jednostka zatrzymana</source>
        <translation>Parallel operation - unit stopped</translation>
    </message>
    <message>
        <source>Praca równoległa - brak redundancji</source>
        <translation>Parallel operation - no redundancy</translation>
    </message>
    <message>
        <source>Praca równoległa - jednostka nieaktywna</source>
        <translation>Parallel operation - unit inactive</translation>
    </message>
    <message>
        <source>Błąd pracy równoległej</source>
        <translation>Parallel operation fault</translation>
    </message>
    <message>
        <source>Praca równoległa - brak minimalnej ilości jednostek</source>
        <translation>Parallel operation - minimum number of units not reached</translation>
    </message>
    <message>
        <source>Wirtualny UPS - brak wymaganej liczby skonfigurowanych UPS w Velmora</source>
        <translation>Virtual UPS - required number of UPSs not configured in Velmora</translation>
    </message>
    <message>
        <source>Wirtualny UPS - nie skonfigurowano jednostki MASTER w Velmora</source>
        <translation>Virtual UPS - no MASTER unit configured in Velmora</translation>
    </message>
    <message>
        <source>Awaria zasiliania na wejściu</source>
        <translation>Input power failure</translation>
    </message>
    <message>
        <source>Awaria UPS</source>
        <translation>UPS failure</translation>
    </message>
    <message>
        <source>Wykonywanie testu akumulatorów</source>
        <translation>Battery test in progress</translation>
    </message>
    <message>
        <source>Trwa wyłączanie UPS</source>
        <translation>UPS shutting down</translation>
    </message>
    <message>
        <source>Zamienione przewody L i N na wejściu UPS</source>
        <translation>L and N wires swapped at the UPS input</translation>
    </message>
    <message>
        <source>Błąd EPROM</source>
        <translation>EPROM fault</translation>
    </message>
    <message>
        <source>Test OK</source>
        <translation>Test OK</translation>
    </message>
    <message>
        <source>Test - wynik negatywny</source>
        <translation>Test - failed</translation>
    </message>
    <message>
        <source>Test baterii nie jest możliwy</source>
        <translation>Battery test not possible</translation>
    </message>
    <message>
        <source>Test - wynik nieznany</source>
        <translation>Test - result unknown</translation>
    </message>
    <message>
        <source>Tryb pracy normalnej</source>
        <translation>Normal work mode</translation>
    </message>
    <message>
        <source>Przeciążenie UPS 110%</source>
        <translation>UPS overload 110%</translation>
    </message>
    <message>
        <source>Przekroczony limit temperatury</source>
        <translation>Temperature limit exceeded</translation>
    </message>
    <message>
        <source>Przekroczony limit obciążenia</source>
        <translation>Load limit exceeded</translation>
    </message>
    <message>
        <source>Błąd wentylatora</source>
        <translation>Fan fault</translation>
    </message>
    <message>
        <source>Błąd magistrali DC</source>
        <translation>DC bus fault</translation>
    </message>
    <message>
        <source>Błąd falownika</source>
        <translation>Inverter fault</translation>
    </message>
    <message>
        <source>Błąd oprogramowania falownika</source>
        <translation>Inverter software fault</translation>
    </message>
    <message>
        <source>Ładowarka - za wysokie napięcie</source>
        <translation>Charger - voltage too high</translation>
    </message>
    <message>
        <source>Błąd ładowarki</source>
        <translation>Charger fault</translation>
    </message>
    <message>
        <source>Stan baterii nieznany</source>
        <translation>Battery state unknown</translation>
    </message>
    <message>
        <source>Stan baterii normalny</source>
        <translation>Battery state normal</translation>
    </message>
    <message>
        <source>Bateria rozładowana</source>
        <translation>Battery discharged</translation>
    </message>
    <message>
        <source>Rozładowywanie baterii</source>
        <translation>Battery discharging</translation>
    </message>
    <message>
        <source>Błąd baterii</source>
        <translation>Battery fault</translation>
    </message>
    <message>
        <source>Test baterii anulowany</source>
        <translation>Battery test canceled</translation>
    </message>
    <message>
        <source>Załączony AVR</source>
        <translation>AVR on</translation>
    </message>
    <message>
        <source>Przeciążenie Bypass</source>
        <translation>Bypass overload</translation>
    </message>
    <message>
        <source>Konieczna wymiana akumulatorów</source>
        <translation>Battery replacement required</translation>
    </message>
    <message>
        <source>Załączony AVR obniżający</source>
        <translation>AVR buck on</translation>
    </message>
    <message>
        <source>AVR podwyższający zablokowany</source>
        <translation>AVR boost blocked</translation>
    </message>
    <message>
        <source>AVR obniżający zablokowany</source>
        <translation>AVR buck blocked</translation>
    </message>
    <message>
        <source>Wentylator załączony</source>
        <translation>Fan on</translation>
    </message>
    <message>
        <source>EPO czasowo zablokowane</source>
        <translation>EPO temporarily blocked</translation>
    </message>
    <message>
        <source>UPS gotowy do pracy</source>
        <translation>UPS ready for operation</translation>
    </message>
    <message>
        <source>Nadmierny wzrost temperatury baterii</source>
        <translation>Battery overtemperature</translation>
    </message>
    <message>
        <source>Brak komunikacji wewnętrznej</source>
        <translation>No internal communication</translation>
    </message>
    <message>
        <source>Praca rezerwowa</source>
        <translation>Operating on battery</translation>
    </message>
    <message>
        <source>Awaria zasiliania na wyjściu</source>
        <translation>Output power failure</translation>
    </message>
    <message>
        <source>Awaria bypass</source>
        <translation>Bypass failure</translation>
    </message>
    <message>
        <source>Wyjście wyłączone na żądanie</source>
        <translation>Output turned off on request</translation>
    </message>
    <message>
        <source>UPS wyłączony na żądanie</source>
        <translation>UPS turned off on request</translation>
    </message>
    <message>
        <source>Wyjście wyłączone</source>
        <translation>Output turned off</translation>
    </message>
    <message>
        <source>UPS wyłączony</source>
        <translation>UPS system off</translation>
    </message>
    <message>
        <source>Błąd bezpiecznika</source>
        <translation>Fuse fault</translation>
    </message>
    <message>
        <source>Test diagnostyczny - wynik negatywny</source>
        <translation>Diagnostic test - failed</translation>
    </message>
    <message>
        <source>Oczekiwanie na powrót zasilania</source>
        <translation>Waiting for power to return</translation>
    </message>
    <message>
        <source>Procedura wyłączenia UPS rozpoczęta</source>
        <translation>UPS shutdown procedure started</translation>
    </message>
    <message>
        <source>Wykonywanie testu</source>
        <translation>Test in progress</translation>
    </message>
    <message>
        <source>Dynamiczna kompensacja mocy biernej</source>
        <translation>Dynamic reactive power compensation</translation>
    </message>
    <message>
        <source>Krytyczne napięcie akumulatora</source>
        <translation>Critical battery voltage</translation>
    </message>
    <message>
        <source>Przegrzanie baterii</source>
        <translation>Battery overheated</translation>
    </message>
    <message>
        <source>Przegrzanie falownika</source>
        <translation>Inverter overheated</translation>
    </message>
    <message>
        <source>Brak oleju</source>
        <translation>No oil</translation>
    </message>
    <message>
        <source>Prestart</source>
        <translation>Prestart</translation>
    </message>
    <message>
        <source>Parametry sieci poza zakresem</source>
        <translation>Mains parameters out of range</translation>
    </message>
    <message>
        <source>Test - zakończony ostrzeżeniem</source>
        <translation>Test - completed with a warning</translation>
    </message>
    <message>
        <source>Opóźnione załączenie wyjścia</source>
        <translation>Delayed output turn-on</translation>
    </message>
    <message>
        <source>Odliczanie opóźnienia trybu oczekiwania</source>
        <translation>Waiting mode delay countdown</translation>
    </message>
    <message>
        <source>Parametry linii zasilającej poza zakresem</source>
        <translation>Supply line parameters out of range</translation>
    </message>
    <message>
        <source>Parametry linii obejściowej poza zakresem</source>
        <translation>Bypass line parameters out of range</translation>
    </message>
    <message>
        <source>Wyjścia UPS nieaktywne</source>
        <translation>UPS outputs inactive</translation>
    </message>
    <message>
        <source>Wyjście sterowalne (sekcja 1) wyłączone</source>
        <translation>Controllable output (section 1) turned off</translation>
    </message>
    <message>
        <source>Wyjście sterowalne (sekcja 2) wyłączone</source>
        <translation>Controllable output (section 2) turned off</translation>
    </message>
    <message>
        <source>Niepoprawna kolejność faz linii podstawowej</source>
        <translation>Incorrect main line phase sequence</translation>
    </message>
    <message>
        <source>Nierozpoznany model UPS</source>
        <translation>Unrecognized UPS model</translation>
    </message>
    <message>
        <source>Zdjęta osłona przełącznika obejścia serwisowego</source>
        <translation>Maintenance bypass switch cover removed</translation>
    </message>
    <message>
        <source>Zasilanie wyjść z UPS (z podtrzymaniem)</source>
        <translation>Outputs powered by the UPS (backed up)</translation>
    </message>
    <message>
        <source>Zasilanie wyjść z sieci (bez podtrzymania)</source>
        <translation>Outputs powered by the mains (not backed up)</translation>
    </message>
    <message>
        <source>Napięcie linii zasilającej nieprawidłowe</source>
        <translation>Incorrect supply line voltage</translation>
    </message>
    <message>
        <source>Częstotliwość linii zasilającej nieprawidłowa</source>
        <translation>Incorrect supply line frequency</translation>
    </message>
    <message>
        <source>Napięcie linii Bypass nieprawidłowe</source>
        <translation>Incorrect bypass line voltage</translation>
    </message>
    <message>
        <source>Częstotliwość linii Bypass nieprawidłowa</source>
        <translation>Incorrect bypass line frequency</translation>
    </message>
    <message>
        <source>Ładowarka - za niskie napięcie</source>
        <translation>Charger - voltage too low</translation>
    </message>
    <message>
        <source>Niski poziom paliwa - Wrn</source>
        <translation>Low fuel level - Wrn</translation>
    </message>
    <message>
        <source>Niski poziom paliwa - Sd</source>
        <translation>Low fuel level - Sd</translation>
    </message>
    <message>
        <source>Napięcie akumulatora poza zakresem - Wrn</source>
        <translation>Battery voltage out of range - Wrn</translation>
    </message>
    <message>
        <source>Błąd alternatora - Wrn</source>
        <translation>Alternator fault - Wrn</translation>
    </message>
    <message>
        <source>Nadmierna prędkość obrotowa - Sd</source>
        <translation>Overspeed - Sd</translation>
    </message>
    <message>
        <source>Za mała prędkość obrotowa - Sd</source>
        <translation>Underspeed - Sd</translation>
    </message>
    <message>
        <source>Błąd uziemienia - Sd</source>
        <translation>Ground fault - Sd</translation>
    </message>
    <message>
        <source>Alarm ECU - Wrn</source>
        <translation>ECU alarm - Wrn</translation>
    </message>
    <message>
        <source>Brak komunikacji z ECU - Wrn</source>
        <translation>No communication with the ECU - Wrn</translation>
    </message>
    <message>
        <source>Niepoprawna kolejność faz agregatu - Wrn</source>
        <translation>Incorrect genset phase sequence - Wrn</translation>
    </message>
    <message>
        <source>Niepoprawna kolejność faz sieci - Wrn</source>
        <translation>Incorrect mains phase sequence - Wrn</translation>
    </message>
    <message>
        <source>Przeciążenie - BOC</source>
        <translation>Overload - BOC</translation>
    </message>
    <message>
        <source>Zwarcie - BOC</source>
        <translation>Short-circuit - BOC</translation>
    </message>
    <message>
        <source>Niesymetryczne obciążenie faz agregatu - BOC</source>
        <translation>Unbalanced genset phase load - BOC</translation>
    </message>
    <message>
        <source>Przekroczony limit obciążenia dla IDMT - BOC</source>
        <translation>IDMT load limit exceeded - BOC</translation>
    </message>
    <message>
        <source>Awaria stycznika w obwodzie agregatu - Sd</source>
        <translation>Genset contactor failure - Sd</translation>
    </message>
    <message>
        <source>Awaria stycznika w obwodzie sieci - MF</source>
        <translation>Mains contactor failure - MF</translation>
    </message>
    <message>
        <source>Konieczna wymiana DPF - Wrn</source>
        <translation>DPF replacement required - Wrn</translation>
    </message>
    <message>
        <source>Napięcie agregatu poza zakresem - SD</source>
        <translation>Genset voltage out of range - SD</translation>
    </message>
    <message>
        <source>Napięcie agregatu poza zakresem - BOC</source>
        <translation>Genset voltage out of range - BOC</translation>
    </message>
    <message>
        <source>Niesymetryczne napięcie agregatu - BOC</source>
        <translation>Unbalanced genset voltage - BOC</translation>
    </message>
    <message>
        <source>Częstotliwość agregatu poza zakresem - BOC</source>
        <translation>Genset frequency out of range - BOC</translation>
    </message>
    <message>
        <source>Napięcie sieci poza zakresem - MF</source>
        <translation>Mains voltage out of range - MF</translation>
    </message>
    <message>
        <source>Niesymetryczne napięcie sieci- MF</source>
        <translation>Unbalanced mains voltage - MF</translation>
    </message>
    <message>
        <source>Częstotliwość sieci poza zakresem - MF</source>
        <translation>Mains frequency out of range - MF</translation>
    </message>
    <message>
        <source>Awaryjne zatrzymanie - SD</source>
        <translation>Emergency stop - SD</translation>
    </message>
    <message>
        <source>Rozładowany akumulator - SD</source>
        <translation>Battery discharged - SD</translation>
    </message>
    <message>
        <source>Serwis - Wrn</source>
        <translation>Maintenance - Wrn</translation>
    </message>
    <message>
        <source>Nieznany</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>Rezerwowy</source>
        <translation>Reserve</translation>
    </message>
    <message>
        <source>Sieciowy</source>
        <translation>Mains</translation>
    </message>
    <message>
        <source>Niski stan baterii</source>
        <translation>Battery low</translation>
    </message>
    <message>
        <source>AVR</source>
        <translation>AVR</translation>
    </message>
    <message>
        <source>Przeciążenie</source>
        <translation>Overload</translation>
    </message>
    <message>
        <source>Zwarcie</source>
        <translation>Short-circuit</translation>
    </message>
    <message>
        <source>Oczekiwanie</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>Czuwanie</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>ECO</source>
        <translation>ECO</translation>
    </message>
    <message>
        <source>Awaryjny</source>
        <translation>Emergency</translation>
    </message>
    <message>
        <source>Inicjalizacja</source>
        <translation>Initialization</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Hybrydowy</source>
        <translation>Hybrid</translation>
    </message>
    <message>
        <source>Testowanie baterii</source>
        <translation>Battery test</translation>
    </message>
    <message>
        <source>Konwersja częstotliwości</source>
        <translation>Converter</translation>
    </message>
    <message>
        <source>Wyłączenie UPS</source>
        <translation>UPS Shutdown</translation>
    </message>
    <message>
        <source>Tryb błędu</source>
        <translation>UPS Fault</translation>
    </message>
    <message>
        <source>Włączony</source>
        <translation>Turned on</translation>
    </message>
    <message>
        <source>Wyłączony</source>
        <translation>Turned off</translation>
    </message>
    <message>
        <source>Autotest</source>
        <translation>Autotest</translation>
    </message>
    <message>
        <source>ECO/Bypass</source>
        <translation>ECO/Bypass</translation>
    </message>
    <message>
        <source>Domyślne hasło: </source>
        <translation>Default password: </translation>
    </message>
</context>
<context>
    <name>SendEmailWindow</name>
    <message>
        <source>Wyślij email</source>
        <translation>Send e-mail</translation>
    </message>
    <message>
        <source>Nadawca (np. Jan Kowalski)</source>
        <translation>Sender (e.g. John Smith)</translation>
    </message>
    <message>
        <source>Adresat (np. a@example.com; b@example.com)</source>
        <translation>Recipient (e.g. a@example.com; b@example.com)</translation>
    </message>
    <message>
        <source>Temat wiadomości</source>
        <translation>Subject</translation>
    </message>
    <message>
        <source>Treść wiadomości</source>
        <translation>Message text</translation>
    </message>
</context>
<context>
    <name>SmtpTestWindow</name>
    <message>
        <source>Test konfiguracji SMTP</source>
        <translation>SMTP settings test</translation>
    </message>
    <message>
        <source>Inicjalizacja testu...</source>
        <translation>Starting the test...</translation>
    </message>
    <message>
        <source>Przebieg testu</source>
        <translation>Test progress</translation>
    </message>
    <message>
        <source>Testowanie konfiguracji...</source>
        <translation>Testing the settings...</translation>
    </message>
    <message>
        <source>Konfiguracja prawidłowa</source>
        <translation>The settings are correct</translation>
    </message>
    <message>
        <source>Konfiguracja błędna</source>
        <translation>The settings are wrong</translation>
    </message>
    <message>
        <source>Usługa nie odpowiada. Czy wersja usługi jest zgodna z wersją panelu kontrolnego Velmora?</source>
        <translation>The service does not answer. Does its version match that of the Velmora control panel?</translation>
    </message>
</context>
<context>
    <name>SnmpOptionsWindow</name>
    <message>
        <source>Konfiguracja SNMP</source>
        <translation>SNMP settings</translation>
    </message>
    <message>
        <source>Adres agenta</source>
        <translation>Agent address</translation>
    </message>
    <message>
        <source>Hasło odczytu</source>
        <translation>Read community</translation>
    </message>
    <message>
        <source>Hasło zapisu</source>
        <translation>Write community</translation>
    </message>
    <message>
        <source>Wersja SNMP</source>
        <translation>SNMP version</translation>
    </message>
    <message>
        <source>Numer seryjny 
sterownika</source>
        <translation>Controller 
serial number</translation>
    </message>
    <message>
        <source>Uwaga</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Wprowadzono nieprawidłowy adres IP</source>
        <translation>The IP address that was entered is not valid</translation>
    </message>
</context>
<context>
    <name>SysCommandWindow</name>
    <message>
        <source>Po wykonaniu polecenia wyłącz zasilacz UPS</source>
        <translation>Turn off the UPS after running the command</translation>
    </message>
    <message>
        <source>Polecenie systemowe</source>
        <translation>System command</translation>
    </message>
    <message>
        <source>Otwórz</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Polecenia systemowe</source>
        <translation>System commands</translation>
    </message>
    <message>
        <source>Polecenie</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>Opcje</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Czas po którym polecenie zostanie wykonane</source>
        <translation>Delay before the command is carried out</translation>
    </message>
    <message>
        <source>Wybierz plik</source>
        <translation>Choose a file</translation>
    </message>
    <message>
        <source>Wszystkie pliki (*.*)</source>
        <translation>All files (*.*)</translation>
    </message>
</context>
<context>
    <name>UPSConfigurationWindow</name>
    <message>
        <source>Konfiguracja UPS</source>
        <translation>UPS configuration</translation>
    </message>
    <message>
        <source>Ustawienia i polecenia</source>
        <translation>Settings and commands</translation>
    </message>
    <message>
        <source>Zmiany zapisuje się pojedynczo: pozostałe pozycje są zablokowane, dopóki zmieniona nie zostanie zapisana lub przywrócona.</source>
        <translation>Changes are saved one at a time: the other entries are locked until the changed one is saved or restored.</translation>
    </message>
    <message>
        <source>Uwaga</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Napięcie wyjściowe</source>
        <translation>Output voltage</translation>
    </message>
    <message>
        <source>Częstotliwość wyjściowa</source>
        <translation>Output frequency</translation>
    </message>
    <message>
        <source>Próg dolny wejściowy</source>
        <translation>Lower input threshold</translation>
    </message>
    <message>
        <source>Próg górny wejściowy</source>
        <translation>Upper input threshold</translation>
    </message>
    <message>
        <source>Próg dolny AVR Boost</source>
        <translation>Lower AVR boost threshold</translation>
    </message>
    <message>
        <source>Próg dolny AVR Trim</source>
        <translation>Lower AVR trim threshold</translation>
    </message>
    <message>
        <source>Liczba modułów bateryjnych</source>
        <translation>Number of battery modules</translation>
    </message>
    <message>
        <source>Opóźnienie trybu oczekiwania</source>
        <translation>Standby delay</translation>
    </message>
    <message>
        <source>Minimalna pojemność powrotu</source>
        <translation>Minimum capacity for return</translation>
    </message>
    <message>
        <source>Napięcie wyjściowe L1</source>
        <translation>Output voltage L1</translation>
    </message>
    <message>
        <source>Napięcie wyjściowe L2</source>
        <translation>Output voltage L2</translation>
    </message>
    <message>
        <source>Napięcie wyjściowe L3</source>
        <translation>Output voltage L3</translation>
    </message>
    <message>
        <source>Próg górny częstotliwościowy</source>
        <translation>Upper frequency threshold</translation>
    </message>
    <message>
        <source>Próg dolny częstotliwościowy</source>
        <translation>Lower frequency threshold</translation>
    </message>
    <message>
        <source>Przeciążenie stop</source>
        <translation>Overload ends at</translation>
    </message>
    <message>
        <source>Pojemność ze standby</source>
        <translation>Capacity to leave standby</translation>
    </message>
    <message>
        <source>Pojemność sekcji akumulatorów</source>
        <translation>Battery section capacity</translation>
    </message>
    <message>
        <source>Czas autonomii przy którym 
zgłaszany jest niski poziom baterii</source>
        <translation>Runtime at which low battery
is reported</translation>
    </message>
    <message>
        <source>Prąd ładowania</source>
        <translation>Charging current</translation>
    </message>
    <message>
        <source>Adres jednostki równoległej</source>
        <translation>Parallel unit address</translation>
    </message>
    <message>
        <source>Minimalna liczba jednostek 
w pracy równoległej</source>
        <translation>Minimum number of units
in parallel operation</translation>
    </message>
    <message>
        <source>Adres Modbus</source>
        <translation>Modbus address</translation>
    </message>
    <message>
        <source>Czas wyłączenia komputera</source>
        <translation>Computer shutdown time</translation>
    </message>
    <message>
        <source>Czas oczekiwania przed włączeniem UPS</source>
        <translation>Wait before the UPS turns on</translation>
    </message>
    <message>
        <source>Wymuszenie oczekiwania</source>
        <translation>Force standby</translation>
    </message>
    <message>
        <source>Alarm dźwiękowy</source>
        <translation>Audible alarm</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Blokada klawiatury</source>
        <translation>Keypad lock</translation>
    </message>
    <message>
        <source>Tryb ECO</source>
        <translation>ECO mode</translation>
    </message>
    <message>
        <source>Włączenie urządzenia</source>
        <translation>Device on</translation>
    </message>
    <message>
        <source>Wywołanie testu akumulatorów</source>
        <translation>Start battery test</translation>
    </message>
    <message>
        <source>Wyzwolenie EPO</source>
        <translation>Trigger EPO</translation>
    </message>
    <message>
        <source>Blokada EPO</source>
        <translation>Disable EPO</translation>
    </message>
    <message>
        <source>Kontrola zasilania linii obejściowej</source>
        <translation>Check bypass line supply</translation>
    </message>
    <message>
        <source>Kasowanie st. awaryjnych prost.</source>
        <translation>Clear rectifier faults</translation>
    </message>
    <message>
        <source>Kasowanie st. awaryjnych fal.</source>
        <translation>Clear inverter faults</translation>
    </message>
    <message>
        <source>Kasowanie st. awaryjnych</source>
        <translation>Clear faults</translation>
    </message>
    <message>
        <source>Resetowanie licznika zużycia akumulatora</source>
        <translation>Reset battery wear counter</translation>
    </message>
    <message>
        <source>Zdalne włączenie UPS</source>
        <translation>Turn the UPS on remotely</translation>
    </message>
    <message>
        <source>Zdalne wyłączenie UPS</source>
        <translation>Turn the UPS off remotely</translation>
    </message>
    <message>
        <source>Przywróć ustawienia domyślne UPS</source>
        <translation>Restore UPS default settings</translation>
    </message>
    <message>
        <source>Sygnalizacja dźwiękowa</source>
        <translation>Audible signals</translation>
    </message>
    <message>
        <source>Sygnalizacja dźwiękowa w trybie pracy bypass</source>
        <translation>Audible signals in bypass mode</translation>
    </message>
    <message>
        <source>Sygnalizacja dźwiękowa w trybie pracy rezerwowej</source>
        <translation>Audible signals in battery mode</translation>
    </message>
    <message>
        <source>Automatyczny restart UPS</source>
        <translation>Automatic UPS restart</translation>
    </message>
    <message>
        <source>Bypass gdy UPS jest wyłączony</source>
        <translation>Bypass while the UPS is off</translation>
    </message>
    <message>
        <source>Przeciążenie start</source>
        <translation>Overload starts at</translation>
    </message>
    <message>
        <source>Nadmierny wzrost temperatury start</source>
        <translation>Overtemperature starts at</translation>
    </message>
    <message>
        <source>Test baterii 10 s</source>
        <translation>10 s battery test</translation>
    </message>
    <message>
        <source>Test baterii do niskiego poziomu</source>
        <translation>Battery test until low battery</translation>
    </message>
    <message>
        <source>Czas testu baterii</source>
        <translation>Battery test duration</translation>
    </message>
    <message>
        <source>Test baterii przez określony czas</source>
        <translation>Battery test for the set duration</translation>
    </message>
    <message>
        <source>Anuluj test baterii</source>
        <translation>Cancel battery test</translation>
    </message>
    <message>
        <source>Wyczyść wyniki testu baterii</source>
        <translation>Clear battery test results</translation>
    </message>
    <message>
        <source>Tryb konwersji</source>
        <translation>Converter mode</translation>
    </message>
    <message>
        <source>Autodetekcja częstotliwości</source>
        <translation>Frequency autodetection</translation>
    </message>
    <message>
        <source>Funkcja głębokiego rozładowania</source>
        <translation>Deep discharge function</translation>
    </message>
    <message>
        <source>Reset po zwarciu</source>
        <translation>Reset after short circuit</translation>
    </message>
    <message>
        <source>Blokada bypass</source>
        <translation>Disable bypass</translation>
    </message>
    <message>
        <source>Zakres częst. Bypass (dolne ograniczenie)</source>
        <translation>Bypass frequency range (lower limit)</translation>
    </message>
    <message>
        <source>Zakres częst. Bypass (górne ograniczenie)</source>
        <translation>Bypass frequency range (upper limit)</translation>
    </message>
    <message>
        <source>Zakres napięcia Bypass (dolne ograniczenie)</source>
        <translation>Bypass voltage range (lower limit)</translation>
    </message>
    <message>
        <source>Zakres napięcia Bypass (górne ograniczenie)</source>
        <translation>Bypass voltage range (upper limit)</translation>
    </message>
    <message>
        <source>Dolne ograniczenie częst. ECO</source>
        <translation>ECO lower frequency limit</translation>
    </message>
    <message>
        <source>Górne ograniczenie częst. ECO</source>
        <translation>ECO upper frequency limit</translation>
    </message>
    <message>
        <source>Dolne ograniczenie napięcia ECO</source>
        <translation>ECO lower voltage limit</translation>
    </message>
    <message>
        <source>Górne ograniczenie napięcia ECO</source>
        <translation>ECO upper voltage limit</translation>
    </message>
    <message>
        <source>Włączenie gniazd wyjściowych - sekcja nr 1</source>
        <translation>Output sockets on - section 1</translation>
    </message>
    <message>
        <source>Włączenie gniazd wyjściowych - sekcja nr 2</source>
        <translation>Output sockets on - section 2</translation>
    </message>
    <message>
        <source>Funkcja Green</source>
        <translation>Green function</translation>
    </message>
    <message>
        <source>Dźwięki klawiszy</source>
        <translation>Key sounds</translation>
    </message>
    <message>
        <source>Próg dolny wyjściowy</source>
        <translation>Lower output threshold</translation>
    </message>
    <message>
        <source>Próg górny wyjściowy</source>
        <translation>Upper output threshold</translation>
    </message>
    <message>
        <source>Próg dolny częstotliwościowy wyjściowy</source>
        <translation>Lower output frequency threshold</translation>
    </message>
    <message>
        <source>Próg górny częstotliwościowy wyjściowy</source>
        <translation>Upper output frequency threshold</translation>
    </message>
    <message>
        <source>Ethernet włączony</source>
        <translation>Ethernet on</translation>
    </message>
    <message>
        <source>Resetuj ethernet</source>
        <translation>Reset Ethernet</translation>
    </message>
    <message>
        <source>DHCP włączony</source>
        <translation>DHCP on</translation>
    </message>
    <message>
        <source>Adres IP karty sieciowej</source>
        <translation>Network card IP address</translation>
    </message>
    <message>
        <source>Maska podsieci</source>
        <translation>Subnet mask</translation>
    </message>
    <message>
        <source>Brama domyślna</source>
        <translation>Default gateway</translation>
    </message>
    <message>
        <source>HTTP włączony</source>
        <translation>HTTP on</translation>
    </message>
    <message>
        <source>Użytkownik - serwis HTTP</source>
        <translation>HTTP service - user</translation>
    </message>
    <message>
        <source>Hasło - serwis HTTP</source>
        <translation>HTTP service - password</translation>
    </message>
    <message>
        <source>SNMP włączony</source>
        <translation>SNMP on</translation>
    </message>
    <message>
        <source>Hasło - odczyt SNMP</source>
        <translation>SNMP read community</translation>
    </message>
    <message>
        <source>Hasło - zapis SNMP</source>
        <translation>SNMP write community</translation>
    </message>
    <message>
        <source>Tylko do odczytu</source>
        <translation>Read only</translation>
    </message>
    <message>
        <source>SNMP trap włączony</source>
        <translation>SNMP traps on</translation>
    </message>
    <message>
        <source>Adres IP dla notyfikacji SNMP</source>
        <translation>SNMP notification IP address</translation>
    </message>
    <message>
        <source>Hasło - notyfikacje SNMP</source>
        <translation>SNMP notification community</translation>
    </message>
    <message>
        <source>Zdalne włączenie agregatu</source>
        <translation>Start the genset remotely</translation>
    </message>
    <message>
        <source>Zdalne wyłączenie agregatu</source>
        <translation>Stop the genset remotely</translation>
    </message>
    <message>
        <source>Resetuj statystyki</source>
        <translation>Reset statistics</translation>
    </message>
    <message>
        <source>Obwód sieci elektrycznej zamknięty</source>
        <translation>Mains circuit breaker closed</translation>
    </message>
    <message>
        <source>Obwód agregatu zamknięty</source>
        <translation>Genset circuit breaker closed</translation>
    </message>
    <message>
        <source>Hasło dostępu</source>
        <translation>Access code</translation>
    </message>
    <message>
        <source>Tryb pracy kontrolera</source>
        <translation>Controller mode</translation>
    </message>
    <message>
        <source>Dummy 0</source>
        <translation>Dummy 0</translation>
    </message>
    <message>
        <source>Dummy 1</source>
        <translation>Dummy 1</translation>
    </message>
    <message>
        <source>Dummy 2</source>
        <translation>Dummy 2</translation>
    </message>
    <message>
        <source>Dummy 3</source>
        <translation>Dummy 3</translation>
    </message>
    <message>
        <source>Dummy 4</source>
        <translation>Dummy 4</translation>
    </message>
    <message>
        <source>Autotest 10 s</source>
        <translation>10 s self-test</translation>
    </message>
    <message>
        <source>Górny próg napięcia 
wejściowego</source>
        <translation>Upper input voltage
threshold</translation>
    </message>
    <message>
        <source>Dolny próg napięcia 
wejściowego</source>
        <translation>Lower input voltage
threshold</translation>
    </message>
    <message>
        <source>Tolerancja częstotliwości 
sieci zasilającej</source>
        <translation>Mains frequency
tolerance</translation>
    </message>
    <message>
        <source>Konfiguracja trybu ECO UPS</source>
        <translation>UPS ECO mode setup</translation>
    </message>
    <message>
        <source>Kontrola poprawności bypass</source>
        <translation>Bypass validity check</translation>
    </message>
    <message>
        <source>Bypass - górna tolerancja 
napięcia</source>
        <translation>Bypass - upper voltage
tolerance</translation>
    </message>
    <message>
        <source>Bypass - dolna tolerancja 
napięcia</source>
        <translation>Bypass - lower voltage
tolerance</translation>
    </message>
    <message>
        <source>Opóźnienie ponownego zasilenia 
wyjść</source>
        <translation>Delay before outputs are
supplied again</translation>
    </message>
    <message>
        <source>Opóźnienie powrotu na zasilanie 
sieciowe</source>
        <translation>Delay before return
to mains supply</translation>
    </message>
    <message>
        <source>Próg pojemności, przy którym
zgłaszany jest niski poziom baterii</source>
        <translation>Capacity at which low battery
is reported</translation>
    </message>
    <message>
        <source>Okres automatycznego testu baterii</source>
        <translation>Automatic battery test interval</translation>
    </message>
    <message>
        <source>Zimny start</source>
        <translation>Cold start</translation>
    </message>
    <message>
        <source>Wygaszacz ekranu</source>
        <translation>Screen saver</translation>
    </message>
    <message>
        <source>Test wyświetlacza LCD</source>
        <translation>LCD test</translation>
    </message>
    <message>
        <source>Automatyczne wyłaczenie gniazd 
sterowalnych poniżej pojemności</source>
        <translation>Switch controllable sockets off
automatically below capacity</translation>
    </message>
    <message>
        <source>Opóźnienie automatycznego wyłączenia 
gniazd sterowalnych</source>
        <translation>Delay before controllable sockets
switch off automatically</translation>
    </message>
    <message>
        <source>Opóźnienie automatycznego załączenia 
gniazd sterowalnych</source>
        <translation>Delay before controllable sockets
switch on automatically</translation>
    </message>
    <message>
        <source>Kalibracja predykcji czasu</source>
        <translation>Runtime prediction calibration</translation>
    </message>
    <message>
        <source>Anuluj trwające testy baterii</source>
        <translation>Abort running battery tests</translation>
    </message>
    <message>
        <source>Ręczny BYPASS</source>
        <translation>Manual bypass</translation>
    </message>
    <message>
        <source>Przejdź na BYPASS w przeciążeniu</source>
        <translation>Switch to bypass on overload</translation>
    </message>
    <message>
        <source>Tryb stabilizacji częstotliwości 
wyjściowej</source>
        <translation>Output frequency
stabilization mode</translation>
    </message>
    <message>
        <source>Częstotliwość napięcia wyjściowego</source>
        <translation>Output voltage frequency</translation>
    </message>
    <message>
        <source>Nazwa urządzenia</source>
        <translation>Device name</translation>
    </message>
    <message>
        <source>Lokalizacja urządzenia</source>
        <translation>Device location</translation>
    </message>
    <message>
        <source>Osoba kontaktowa</source>
        <translation>Contact person</translation>
    </message>
    <message>
        <source>Rozszerzone progi przełączania zasilacza</source>
        <translation>Extended transfer thresholds</translation>
    </message>
    <message>
        <source>Anuluj odliczanie przejścia do trybu oczekiwania</source>
        <translation>Cancel the countdown to standby</translation>
    </message>
    <message>
        <source>Przywróć domyślne ustawienia UPS</source>
        <translation>Restore default UPS settings</translation>
    </message>
    <message>
        <source>Maksymalny dopuszczalny czas pracy rezerwowej</source>
        <translation>Maximum permitted time on battery</translation>
    </message>
    <message>
        <source>Włącz ograniczenie maksymalnego czasu pracy w trybie bateryjnym</source>
        <translation>Limit the maximum time on battery</translation>
    </message>
    <message>
        <source>Wejście bezpotencjałowe - funkcja</source>
        <translation>Dry contact input - function</translation>
    </message>
    <message>
        <source>Wyjście bezpotencjałowe - funkcja</source>
        <translation>Dry contact output - function</translation>
    </message>
    <message>
        <source>Sprawdzaj kolejność L i N na wejściu UPS</source>
        <translation>Check L and N order at the UPS input</translation>
    </message>
    <message>
        <source>Konfiguracja wejścia EPO</source>
        <translation>EPO input setup</translation>
    </message>
    <message>
        <source>Niestandardowy moduł bateryjny - korzystaj
z deklarowanej pojemności</source>
        <translation>Non-standard battery module -
use the declared capacity</translation>
    </message>
    <message>
        <source>Automatyczne wyłączanie wyświetlacza LCD</source>
        <translation>Turn the LCD off automatically</translation>
    </message>
    <message>
        <source>Konfiguracja wejścia bezpotencjałowego</source>
        <translation>Dry contact input setup</translation>
    </message>
    <message>
        <source>Konfiguracja wyjścia bezpotencjałowego</source>
        <translation>Dry contact output setup</translation>
    </message>
    <message>
        <source>Predykcja czasu autonomii</source>
        <translation>Runtime prediction</translation>
    </message>
    <message>
        <source>Restart UPS po przeciążeniu</source>
        <translation>Restart the UPS after overload</translation>
    </message>
    <message>
        <source>Sterowanie gniazdami wyjściowymi PDU</source>
        <translation>PDU output socket control</translation>
    </message>
    <message>
        <source>Konfiguracja wejścia (liczba faz)</source>
        <translation>Input setup (number of phases)</translation>
    </message>
    <message>
        <source>Konfiguracja wyjścia (liczba faz)</source>
        <translation>Output setup (number of phases)</translation>
    </message>
    <message>
        <source>Bypass - tolerancja częstotliwości</source>
        <translation>Bypass - frequency tolerance</translation>
    </message>
    <message>
        <source>Opuść Ręczny BYPASS</source>
        <translation>Leave manual bypass</translation>
    </message>
    <message>
        <source>Uruchom poprzez Bypass</source>
        <translation>Start through bypass</translation>
    </message>
    <message>
        <source>Ignoruj zdalne komendy wymuszenia
Trybu Oczekiwania/Restartu</source>
        <translation>Ignore remote commands to force
standby or restart</translation>
    </message>
    <message>
        <source>W przypadku niepowodzenia testu baterii UPS będzie wydawał sygnał dźwiękowy co 2 sekundy. Jeżeli stan baterii będzie krytyczny UPS zasygnalizuje to świeceniem czerwonej diody.</source>
        <translation>If the battery test fails, the UPS will beep every 2 seconds. If the battery is in a critical state, the UPS will show it with a red light.</translation>
    </message>
    <message>
        <source>Nastąpi awaryjne wyłączenie zasilania (EPO). Czy kontynuować?</source>
        <translation>This will trigger an emergency power off (EPO). Do you want to continue?</translation>
    </message>
    <message>
        <source>Nastąpi reset licznika zużycia akumulatora.
Funkcję resetu należy wykonać jednorazowo, niezwłocznie po każdej wymianie akumulatora w UPS. Czy kontynuować?</source>
        <translation>The battery wear counter will be reset.
Reset it once, right after each replacement of the battery in the UPS. Do you want to continue?</translation>
    </message>
    <message>
        <source>Wprowadzono nieprawidłowy adres IP</source>
        <translation>The IP address is not valid</translation>
    </message>
    <message>
        <source>Hasło i nazwa użytkownika nie mogą być dłuższe niż 30 znaków</source>
        <translation>The password and the user name cannot be longer than 30 characters</translation>
    </message>
    <message>
        <source>Hasło lub nazwa użytkownika zawiera niedozwolone znaki</source>
        <translation>The password or the user name contains characters that are not allowed</translation>
    </message>
    <message>
        <source>Dopuszczalny zakres to 0 - 65534</source>
        <translation>The permitted range is 0 - 65534</translation>
    </message>
    <message>
        <source>Zmiany parametrów &quot;Adres IP&quot;, &quot;Maska podsieci&quot;, &quot;Brama domyślna&quot; oraz &quot;DHCP włączony&quot; zostaną zastosowane po wyłączeniu i ponownym uruchomieniu karty sieciowej (opcja &quot;Resetuj ethernet&quot;)</source>
        <translation>Changes to &quot;IP address&quot;, &quot;Subnet mask&quot;, &quot;Default gateway&quot; and &quot;DHCP on&quot; take effect once the network card has been switched off and started again (option &quot;Reset Ethernet&quot;)</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Serwer nie przysłał całego pliku (HTTP %1)</source>
        <translation>The server did not send the whole file (HTTP %1)</translation>
    </message>
    <message>
        <source>Nie można zapisać pliku %1: %2</source>
        <translation>The file %1 could not be saved: %2</translation>
    </message>
</context>
<context>
    <name>UpdateDownloadWindow</name>
    <message>
        <source>Trwa pobieranie aktualizacji</source>
        <translation>Downloading the update</translation>
    </message>
    <message>
        <source>Postęp pobierania</source>
        <translation>Download progress</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>UpsEventsWindow</name>
    <message>
        <source>Tryb pracy - Inicjalizacja</source>
        <translation>Work mode - Initialization</translation>
    </message>
    <message>
        <source>Tryb pracy - Stop</source>
        <translation>Work mode - Stop</translation>
    </message>
    <message>
        <source>Tryb pracy - Czuwanie</source>
        <translation>Work mode - Stand-by</translation>
    </message>
    <message>
        <source>Tryb pracy - ECO</source>
        <translation>Work mode - ECO</translation>
    </message>
    <message>
        <source>Tryb pracy - Sieciowa</source>
        <translation>Work mode - Mains</translation>
    </message>
    <message>
        <source>Tryb pracy - Rezerwowa</source>
        <translation>Work mode - Reserve</translation>
    </message>
    <message>
        <source>Tryb pracy - Hybrydowa</source>
        <translation>Work mode - Hybrid</translation>
    </message>
    <message>
        <source>Tryb pracy - Awaryjna</source>
        <translation>Work mode - Emergency</translation>
    </message>
    <message>
        <source>Tryb pracy - Bypass</source>
        <translation>Work mode - Bypass</translation>
    </message>
    <message>
        <source>Tryb pracy - Oczekiwanie</source>
        <translation>Work mode - Waiting</translation>
    </message>
    <message>
        <source>Zwarcie</source>
        <translation>Short-circuit</translation>
    </message>
    <message>
        <source>Przeciążenie</source>
        <translation>Overload</translation>
    </message>
    <message>
        <source>Nadmierny wzrost temperatury prostownika</source>
        <translation>Rectifier overtemperature</translation>
    </message>
    <message>
        <source>Nadmierny wzrost temperatury falownika</source>
        <translation>Inverter overtemperature</translation>
    </message>
    <message>
        <source>Błąd akumulatora</source>
        <translation>Battery fault</translation>
    </message>
    <message>
        <source>Aktywne EPO</source>
        <translation>EPO active</translation>
    </message>
    <message>
        <source>Wewnętrzny błąd prostownika</source>
        <translation>Internal rectifier fault</translation>
    </message>
    <message>
        <source>Błąd wewnętrzny falownika</source>
        <translation>Internal inverter fault</translation>
    </message>
    <message>
        <source>Błąd pracy równoległej</source>
        <translation>Parallel operation fault</translation>
    </message>
    <message>
        <source>Ładowanie baterii: Start</source>
        <translation>Battery charging: Start</translation>
    </message>
    <message>
        <source>Ładowanie baterii: Stop</source>
        <translation>Battery charging: Stop</translation>
    </message>
    <message>
        <source>Przeciążenie: Start</source>
        <translation>Overload: Start</translation>
    </message>
    <message>
        <source>Przeciążenie: Stop</source>
        <translation>Overload: Stop</translation>
    </message>
    <message>
        <source>Nadmierny wzrost temperatury prostownika: Start</source>
        <translation>Rectifier overtemperature: Start</translation>
    </message>
    <message>
        <source>Nadmierny wzrost temperatury prostownika: Stop</source>
        <translation>Rectifier overtemperature: Stop</translation>
    </message>
    <message>
        <source>Nadmierny wzrost temperatury falownika: Start</source>
        <translation>Inverter overtemperature: Start</translation>
    </message>
    <message>
        <source>Nadmierny wzrost temperatury falownika: Stop</source>
        <translation>Inverter overtemperature: Stop</translation>
    </message>
    <message>
        <source>Oczekiwanie na ładunek minimalny: Start</source>
        <translation>Waiting for minimum charge: Start</translation>
    </message>
    <message>
        <source>Oczekiwanie na ładunek minimalny: Stop</source>
        <translation>Waiting for minimum charge: Stop</translation>
    </message>
    <message>
        <source>Stan niskiej baterii: Start</source>
        <translation>Battery low: Start</translation>
    </message>
    <message>
        <source>Stan niskiej baterii: Stop</source>
        <translation>Battery low: Stop</translation>
    </message>
    <message>
        <source>Serwis: Start</source>
        <translation>Maintenance: Start</translation>
    </message>
    <message>
        <source>Serwis: Stop</source>
        <translation>Maintenance: Stop</translation>
    </message>
    <message>
        <source>Bypass: Start</source>
        <translation>Bypass: Start</translation>
    </message>
    <message>
        <source>Bypass: Stop</source>
        <translation>Bypass: Stop</translation>
    </message>
    <message>
        <source>Brak komunikacji z modułem prostownika: Start</source>
        <translation>No communication with the rectifier module: Start</translation>
    </message>
    <message>
        <source>Brak komunikacji z modułem prostownika: Stop</source>
        <translation>No communication with the rectifier module: Stop</translation>
    </message>
    <message>
        <source>Brak komunikacji z modułem falownika: Start</source>
        <translation>No communication with the inverter module: Start</translation>
    </message>
    <message>
        <source>Brak komunikacji z modułem falownika: Stop</source>
        <translation>No communication with the inverter module: Stop</translation>
    </message>
    <message>
        <source>Niepoprawna kolejność faz linii BYPASS: Start</source>
        <translation>Incorrect bypass line phase sequence: Start</translation>
    </message>
    <message>
        <source>Niepoprawna kolejność faz linii BYPASS: Stop</source>
        <translation>Incorrect bypass line phase sequence: Stop</translation>
    </message>
    <message>
        <source>Zasilanie linii BYPASS poza zakresem: Start</source>
        <translation>Bypass line supply out of range: Start</translation>
    </message>
    <message>
        <source>Zasilanie linii BYPASS poza zakresem: Stop</source>
        <translation>Bypass line supply out of range: Stop</translation>
    </message>
    <message>
        <source>Otwarty obwód baterii: Start</source>
        <translation>Battery circuit open: Start</translation>
    </message>
    <message>
        <source>Otwarty obwód baterii: Stop</source>
        <translation>Battery circuit open: Stop</translation>
    </message>
    <message>
        <source>Zasilanie linii podstawowej poza zakresem: Start</source>
        <translation>Main line supply out of range: Start</translation>
    </message>
    <message>
        <source>Zasilanie linii podstawowej poza zakresem: Stop</source>
        <translation>Main line supply out of range: Stop</translation>
    </message>
    <message>
        <source>Niepoprawna kolejność faz linii podstawowej: Start</source>
        <translation>Incorrect main line phase sequence: Start</translation>
    </message>
    <message>
        <source>Niepoprawna kolejność faz linii podstawowej: Stop</source>
        <translation>Incorrect main line phase sequence: Stop</translation>
    </message>
    <message>
        <source>Dynamiczna kompensacja mocy biernej aktywna: Start</source>
        <translation>Dynamic reactive power compensation active: Start</translation>
    </message>
    <message>
        <source>Dynamiczna kompensacja mocy biernej aktywna: Stop</source>
        <translation>Dynamic reactive power compensation active: Stop</translation>
    </message>
    <message>
        <source>----</source>
        <translation>----</translation>
    </message>
    <message>
        <source>Zdarzenia</source>
        <translation>Events</translation>
    </message>
    <message>
        <source>Pobieranie zdarzeń...</source>
        <translation>Fetching events...</translation>
    </message>
</context>
<context>
    <name>UpsLogsWindow</name>
    <message>
        <source>Data</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Czas</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Czas autonomii</source>
        <translation>Battery runtime</translation>
    </message>
    <message>
        <source>Stan naładowania akumulatora</source>
        <translation>Battery charge level</translation>
    </message>
    <message>
        <source>Tryb pracy</source>
        <translation>Work mode</translation>
    </message>
    <message>
        <source>Temp. wewnętrzna zasilacza</source>
        <translation>UPS internal temp.</translation>
    </message>
    <message>
        <source>Napięcie wejściowe</source>
        <translation>Input voltage</translation>
    </message>
    <message>
        <source>Częstotliowść wejściowa</source>
        <translation>Input frequency</translation>
    </message>
    <message>
        <source>Moc czynna wejściowa</source>
        <translation>Input active power</translation>
    </message>
    <message>
        <source>Napięcie wyjściowe</source>
        <translation>Output voltage</translation>
    </message>
    <message>
        <source>Częstotliowść wyjściowa</source>
        <translation>Output frequency</translation>
    </message>
    <message>
        <source>Moc pozorna wejściowa</source>
        <translation>Input apparent power</translation>
    </message>
    <message>
        <source>Prąd wejściowy</source>
        <translation>Input current</translation>
    </message>
    <message>
        <source>PF wejściowy</source>
        <translation>Input PF</translation>
    </message>
    <message>
        <source>Moc czynna wyjściowa</source>
        <translation>Output active power</translation>
    </message>
    <message>
        <source>Prąd wyjściowy</source>
        <translation>Output current</translation>
    </message>
    <message>
        <source>PF wyjściowy</source>
        <translation>Output PF</translation>
    </message>
    <message>
        <source>Moc pozorna wyjściowa</source>
        <translation>Output apparent power</translation>
    </message>
    <message>
        <source>Prąd akumulatorów</source>
        <translation>Battery current</translation>
    </message>
    <message>
        <source>Napięcie akumulatorów</source>
        <translation>Battery voltage</translation>
    </message>
    <message>
        <source>Obciążenie</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>Moc obciążenia</source>
        <translation>Load power</translation>
    </message>
    <message>
        <source>Temp. 1</source>
        <translation>Temp. 1</translation>
    </message>
    <message>
        <source>Temp. 2</source>
        <translation>Temp. 2</translation>
    </message>
    <message>
        <source>Temp. 3</source>
        <translation>Temp. 3</translation>
    </message>
    <message>
        <source>Temp. 4</source>
        <translation>Temp. 4</translation>
    </message>
    <message>
        <source>Pojemność akumulatorów</source>
        <translation>Battery capacity</translation>
    </message>
    <message>
        <source>Napięcie bypass</source>
        <translation>Bypass voltage</translation>
    </message>
    <message>
        <source>Prąd bypass</source>
        <translation>Bypass current</translation>
    </message>
    <message>
        <source>Moc czynna bypass</source>
        <translation>Bypass active power</translation>
    </message>
    <message>
        <source>Moc pozorna bypass</source>
        <translation>Bypass apparent power</translation>
    </message>
    <message>
        <source>Współczynnik mocy wyjściowej</source>
        <translation>Output power factor</translation>
    </message>
    <message>
        <source>Współczynnik mocy bypass</source>
        <translation>Bypass power factor</translation>
    </message>
    <message>
        <source>PF toru obejściowego</source>
        <translation>Bypass PF</translation>
    </message>
    <message>
        <source>Współczynnik mocy prostownika</source>
        <translation>Rectifier power factor</translation>
    </message>
    <message>
        <source>Częstotliwość bypass</source>
        <translation>Bypass frequency</translation>
    </message>
    <message>
        <source>Napięcie prostownika</source>
        <translation>Rectifier voltage</translation>
    </message>
    <message>
        <source>Prąd prostownika</source>
        <translation>Rectifier current</translation>
    </message>
    <message>
        <source>Częstotliwość prostownika</source>
        <translation>Rectifier frequency</translation>
    </message>
    <message>
        <source>Moc czynna prostownika</source>
        <translation>Rectifier active power</translation>
    </message>
    <message>
        <source>Moc pozorna prostownika</source>
        <translation>Rectifier apparent power</translation>
    </message>
    <message>
        <source>PF prostownika</source>
        <translation>Rectifier PF</translation>
    </message>
    <message>
        <source>Stan akumulatorów</source>
        <translation>Battery state</translation>
    </message>
    <message>
        <source>Temp. otoczenia</source>
        <translation>Ambient temp.</translation>
    </message>
    <message>
        <source>Wilgotność względna</source>
        <translation>Relative humidity</translation>
    </message>
    <message>
        <source>Maksymalne napięcie wejściowe</source>
        <translation>Maximum input voltage</translation>
    </message>
    <message>
        <source>Minimalne napięcie wejściowe</source>
        <translation>Minimum input voltage</translation>
    </message>
    <message>
        <source>Ujemne napięcie magistrali</source>
        <translation>Negative bus voltage</translation>
    </message>
    <message>
        <source>Dodatnie napięcie magistrali</source>
        <translation>Positive bus voltage</translation>
    </message>
    <message>
        <source>Temp. radiatora</source>
        <translation>Heat sink temp.</translation>
    </message>
    <message>
        <source>Temp. akumulatorów</source>
        <translation>Battery temp.</translation>
    </message>
    <message>
        <source>Czas pracy rezerwowej</source>
        <translation>Time on battery</translation>
    </message>
    <message>
        <source>Poziom paliwa</source>
        <translation>Fuel level</translation>
    </message>
    <message>
        <source>Całkowity czas pracy</source>
        <translation>Total run time</translation>
    </message>
    <message>
        <source>Całkowite zużycie paliwa</source>
        <translation>Total fuel consumption</translation>
    </message>
    <message>
        <source>Nap. międzyfazowe w sieci elektrycznej</source>
        <translation>Mains line-to-line voltage</translation>
    </message>
    <message>
        <source>Wyjściowe napięcie międzyfazowe</source>
        <translation>Output line-to-line voltage</translation>
    </message>
    <message>
        <source>D+</source>
        <translation>D+</translation>
    </message>
    <message>
        <source>Wyłączenia awaryjne</source>
        <translation>Emergency stops</translation>
    </message>
    <message>
        <source>Czas do przedlądu</source>
        <translation>Time to maintenance</translation>
    </message>
    <message>
        <source>Liczba uruchomień</source>
        <translation>Number of starts</translation>
    </message>
    <message>
        <source>Moc bierna wyjściowa</source>
        <translation>Output reactive power</translation>
    </message>
    <message>
        <source>Licznik zaników napięcia sieciowego</source>
        <translation>Mains failure counter</translation>
    </message>
    <message>
        <source>Licznik wyzwoleń AVR podwyższającego</source>
        <translation>AVR boost counter</translation>
    </message>
    <message>
        <source>Licznik przeciążeń</source>
        <translation>Overload counter</translation>
    </message>
    <message>
        <source>Licznik zwarć</source>
        <translation>Short-circuit counter</translation>
    </message>
    <message>
        <source>Licznik rozładowań</source>
        <translation>Discharge counter</translation>
    </message>
    <message>
        <source>Czas pracy w przeciążeniu</source>
        <translation>Overload operation time</translation>
    </message>
    <message>
        <source>Czas pracy sieciowej</source>
        <translation>Mains operation time</translation>
    </message>
    <message>
        <source>Czas pracy autonomicznej</source>
        <translation>Battery operation time</translation>
    </message>
    <message>
        <source>Bazowy wsp. 
kompensacji L1</source>
        <translation>Base compens. 
factor L1</translation>
    </message>
    <message>
        <source>Bazowy wsp. 
kompensacji L2</source>
        <translation>Base compens. 
factor L2</translation>
    </message>
    <message>
        <source>Bazowy wsp. 
kompensacji L3</source>
        <translation>Base compens. 
factor L3</translation>
    </message>
    <message>
        <source>Wsp. kompensacji L1</source>
        <translation>Compens. factor L1</translation>
    </message>
    <message>
        <source>Wsp. kompensacji L2</source>
        <translation>Compens. factor L2</translation>
    </message>
    <message>
        <source>Wsp. kompensacji L3</source>
        <translation>Compens. factor L3</translation>
    </message>
    <message>
        <source>Komunikaty</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Przegląd logów</source>
        <translation>Logs</translation>
    </message>
    <message>
        <source>Poprzednie</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Następne</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Anuluj</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Brak logów do wyświetlenia</source>
        <translation>There are no logs to show</translation>
    </message>
</context>
<context>
    <name>UpsTreeWidget</name>
    <message>
        <source>Dodaj</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Edytuj</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Usuń</source>
        <translation>Remove</translation>
    </message>
</context>
<context>
    <name>VLStatusWidget</name>
    <message>
        <source>Połączono z usługą:</source>
        <translation>Connected to the service:</translation>
    </message>
    <message>
        <source>Niezgodna wersja usługi</source>
        <translation>Service version mismatch</translation>
    </message>
    <message>
        <source>Trwa łączenie z usługą:</source>
        <translation>Connecting to the service:</translation>
    </message>
    <message>
        <source>Błąd połączenia z usługą:</source>
        <translation>Service connection error:</translation>
    </message>
    <message>
        <source>Połączono z UPS</source>
        <translation>Connected to the UPS</translation>
    </message>
    <message>
        <source>Połączono z agregatem</source>
        <translation>Connected to the genset</translation>
    </message>
    <message>
        <source>Brak komunikacji z UPS</source>
        <translation>No communication with the UPS</translation>
    </message>
    <message>
        <source>Brak komunikacji z agregatem</source>
        <translation>No communication with the genset</translation>
    </message>
    <message>
        <source>Komunikacja z UPS nieznana</source>
        <translation>UPS communication unknown</translation>
    </message>
    <message>
        <source>Komunikacja z agregatem
nieznana</source>
        <translation>Genset communication
unknown</translation>
    </message>
    <message>
        <source>Wyłączenie za</source>
        <translation>Shutdown in</translation>
    </message>
</context>
<context>
    <name>ValueHelpButton</name>
    <message>
        <source>Dlaczego brak wartości?</source>
        <translation>Why is there no value?</translation>
    </message>
</context>
<context>
    <name>VelmoraWindow</name>
    <message>
        <source>&lt;NIEZNANY&gt;</source>
        <translation>&lt;UNKNOWN&gt;</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>UPS</translation>
    </message>
    <message>
        <source>Model UPS</source>
        <translation>UPS model</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Znamionowa moc czynna</source>
        <translation>Rated active power</translation>
    </message>
    <message>
        <source>Tryb pracy UPS</source>
        <translation>UPS work mode</translation>
    </message>
    <message>
        <source>Stan naładowania akumulatora</source>
        <translation>Battery charge level</translation>
    </message>
    <message>
        <source>Czas autonomii</source>
        <translation>Battery runtime</translation>
    </message>
    <message>
        <source>Temperatura wewnętrzna UPS</source>
        <translation>UPS internal temperature</translation>
    </message>
    <message>
        <source>Konfiguracja UPS</source>
        <translation>UPS configuration</translation>
    </message>
    <message>
        <source>Agregat</source>
        <translation>Genset</translation>
    </message>
    <message>
        <source>Typ urządzenia</source>
        <translation>Device type</translation>
    </message>
    <message>
        <source>Model sterownika</source>
        <translation>Controller model</translation>
    </message>
    <message>
        <source>Numer seryjny sterownika</source>
        <translation>Controller serial number</translation>
    </message>
    <message>
        <source>Tryb pracy agregatu</source>
        <translation>Genset work mode</translation>
    </message>
    <message>
        <source>Poziom paliwa</source>
        <translation>Fuel level</translation>
    </message>
    <message>
        <source>Całkowite zużycie paliwa</source>
        <translation>Total fuel consumption</translation>
    </message>
    <message>
        <source>Całkowity czas pracy</source>
        <translation>Total run time</translation>
    </message>
    <message>
        <source>Konfiguracja agregatu</source>
        <translation>Genset configuration</translation>
    </message>
    <message>
        <source>Znamionowa moc pozorna</source>
        <translation>Rated apparent power</translation>
    </message>
    <message>
        <source>Obciążenie</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>&lt;FONT COLOR=grey&gt;Brak&lt;/FONT&gt;</source>
        <translation>&lt;FONT COLOR=grey&gt;None&lt;/FONT&gt;</translation>
    </message>
    <message>
        <source>&lt;nieokreślona nazwa&gt;</source>
        <translation>&lt;unspecified name&gt;</translation>
    </message>
    <message>
        <source>&lt;nieokreślona lokalizacja&gt;</source>
        <translation>&lt;unspecified location&gt;</translation>
    </message>
    <message>
        <source>Monitorowane UPSy</source>
        <translation>Monitored UPSs</translation>
    </message>
    <message>
        <source>Obciążenie L2</source>
        <translation>Load L2</translation>
    </message>
    <message>
        <source>Obciążenie L3</source>
        <translation>Load L3</translation>
    </message>
    <message>
        <source>Nazwa i lokalizacja</source>
        <translation>Name and location</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Komunikaty i alarmy</source>
        <translation>Messages and alarms</translation>
    </message>
    <message>
        <source>Konfiguracja</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Informacje rozszerzone</source>
        <translation>Extended information</translation>
    </message>
    <message>
        <source>Zdarzenia</source>
        <translation>Events</translation>
    </message>
    <message>
        <source>Konfiguracja aplikacji</source>
        <translation>Application settings</translation>
    </message>
    <message>
        <source>Konfiguracja zdarzeń</source>
        <translation>Event policy</translation>
    </message>
    <message>
        <source>Konfiguracja logów</source>
        <translation>Log settings</translation>
    </message>
    <message>
        <source>Usługa jest zajęta</source>
        <translation>The service is busy</translation>
    </message>
    <message>
        <source>&amp;Plik</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Informacje</source>
        <translation>&amp;Information</translation>
    </message>
    <message>
        <source>&amp;Konfiguracja</source>
        <translation>&amp;Configuration</translation>
    </message>
    <message>
        <source>Pomo&amp;c</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Zaloguj jako administrator</source>
        <translation>&amp;Log in as administrator</translation>
    </message>
    <message>
        <source>&amp;Wyloguj</source>
        <translation>L&amp;og out</translation>
    </message>
    <message>
        <source>Zmień &amp;hasło administratora</source>
        <translation>Change administrator &amp;password</translation>
    </message>
    <message>
        <source>Połącz z &amp;usługą</source>
        <translation>&amp;Connect to service</translation>
    </message>
    <message>
        <source>Za&amp;kończ</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>Infor&amp;macje rozszerzone</source>
        <translation>&amp;Extended information</translation>
    </message>
    <message>
        <source>Konfiguracja &amp;UPS</source>
        <translation>&amp;UPS settings</translation>
    </message>
    <message>
        <source>Konfiguracja &amp;aplikacji</source>
        <translation>&amp;Application settings</translation>
    </message>
    <message>
        <source>Konfiguracja &amp;zdarzeń</source>
        <translation>&amp;Event policy</translation>
    </message>
    <message>
        <source>Konfiguracja l&amp;ogów</source>
        <translation>&amp;Log settings</translation>
    </message>
    <message>
        <source>Po&amp;moc online</source>
        <translation>&amp;Online help</translation>
    </message>
    <message>
        <source>&amp;Sprawdź dostępność aktualizacji</source>
        <translation>&amp;Check for updates</translation>
    </message>
    <message>
        <source>&amp;O programie</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <source>&amp;Pokaż</source>
        <translation>&amp;Show</translation>
    </message>
    <message>
        <source>&amp;Ukryj</source>
        <translation>&amp;Hide</translation>
    </message>
    <message>
        <source> [TRYB DEBUGGOWANIA]</source>
        <translation> [DEBUG MODE]</translation>
    </message>
    <message>
        <source>Komunikat</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>N/D</source>
        <translation>N/A</translation>
    </message>
    <message>
        <source>&amp;Zakończ</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>Usuwanie UPS</source>
        <translation>Remove UPS</translation>
    </message>
    <message>
        <source>Potwierdź usunięcie urządzenia</source>
        <translation>Confirm the removal of the device</translation>
    </message>
    <message>
        <source>Brak zasilaczy UPS</source>
        <translation>No UPS</translation>
    </message>
    <message>
        <source>Aktualnie Velmora nie monitoruje żadnego urządzenia.

Dodaj posiadany model UPS do Velmora aby umożliwić jego monitorowanie.
Velmora, po wcześniejszej konfiguracji zdarzeń, będzie mógł dokonać
bezpiecznego zamknięcia systemu na wypadek utraty zasilania.

Czy chcesz dodać nowy UPS teraz?
</source>
        <translation>Velmora is not monitoring any device at present.

Add your UPS model to Velmora so that it can be monitored.
Once the event policy is set up, Velmora can shut the system
down safely when the power fails.

Do you want to add a new UPS now?
</translation>
    </message>
    <message>
        <source>Nie pokazuj ponownie tego komunikatu</source>
        <translation>Do not show this message again</translation>
    </message>
    <message>
        <source>Nowy UPS</source>
        <translation>New UPS</translation>
    </message>
    <message>
        <source>Edycja UPS</source>
        <translation>Edit UPS</translation>
    </message>
    <message>
        <source>Edycja wirtualny UPS</source>
        <translation>Edit virtual UPS</translation>
    </message>
    <message>
        <source>Błąd połączenia</source>
        <translation>Connection error</translation>
    </message>
    <message>
        <source>Nie można połączyć się z witryną </source>
        <translation>Could not connect to </translation>
    </message>
    <message>
        <source>Aktualizacja</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Brak dostępnych aktualizacji</source>
        <translation>No updates are available</translation>
    </message>
    <message>
        <source>Aktualizacja oprogramowania</source>
        <translation>Software update</translation>
    </message>
    <message>
        <source>Dostępna jest nowa wersja Velmora!</source>
        <translation>A new version of Velmora is available!</translation>
    </message>
    <message>
        <source> Czy chcesz pobrać Velmora </source>
        <translation> Do you want to download Velmora </translation>
    </message>
    <message>
        <source>W celu przeprowadzenia aktualizacji należy uruchomić ControlPanel jako użytkownik o podwyższonych uprawnieniach</source>
        <translation>To install the update, run ControlPanel as a user with elevated privileges</translation>
    </message>
    <message>
        <source>Uwaga</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Urządzenie zostało usunięte lub nie jest już wybrane. Zmiana nie została wysłana.</source>
        <translation>The device was removed or is no longer selected. The change was not sent.</translation>
    </message>
</context>
</TS>
